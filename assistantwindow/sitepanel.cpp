// SPDX-License-Identifier: MIT
// Builds the fields of the site, and reads them.
#include "assistantwindow/sitepanel.h"

#include "assistantwindow/siteentry.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace assistantwindow
{
namespace
{
bool isMissing(const QDoubleSpinBox &field)
{
    return field.value() < field.minimum() + 1.0;
}

QString panelText(const char *source)
{
    return QCoreApplication::translate("SitePanel", source);
}
} // namespace

SitePanel::SitePanel(QWidget *parent)
    : QWidget(parent),
      latitude(new BigSpin(QStringLiteral("doubleSpinBox_latitude"), {1.0, 0.1},
                           new SiteField({'N', 'S'}, 90.0))),
      longitude(new BigSpin(QStringLiteral("doubleSpinBox_longitude"), {1.0, 0.1},
                            new SiteField({'E', 'W'}, 180.0))),
      latitudeName(new QLabel),
      longitudeName(new QLabel),
      use(new QLabel)
{
    setObjectName(QStringLiteral("sitePanel"));
    use->setObjectName(QStringLiteral("label_siteUse"));
    use->setWordWrap(true);
    use->setProperty("quiet", true);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    for (QWidget *const widget :
         {static_cast<QWidget *>(use), static_cast<QWidget *>(latitudeName),
          static_cast<QWidget *>(latitude), static_cast<QWidget *>(longitudeName),
          static_cast<QWidget *>(longitude)})
        column->addWidget(widget);
    for (QDoubleSpinBox *const field : {&latitude->field(), &longitude->field()})
        connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this] {
            if (changed)
                changed(site());
        });
    const auto onReturn = [this](QDoubleSpinBox &field, const std::function<void()> &act) {
        connect(field.findChild<QLineEdit *>(), &QLineEdit::returnPressed, this, act);
    };
    onReturn(latitude->field(), [this] { longitude->field().setFocus(); });
    onReturn(longitude->field(), [this] {
        if (entered)
            entered();
    });
    retranslate();
}

void SitePanel::show(const std::optional<astrometry::Site> &shown)
{
    const QSignalBlocker first(&latitude->field()), second(&longitude->field());
    latitude->field().setValue(shown ? shown->latitude : latitude->field().minimum());
    longitude->field().setValue(shown ? shown->longitude : longitude->field().minimum());
}

void SitePanel::suggestLatitude(double degrees)
{
    latitude->field().setValue(degrees);
}

std::optional<astrometry::Site> SitePanel::site() const
{
    if (isMissing(latitude->field()) || isMissing(longitude->field()))
        return {};
    return astrometry::Site{latitude->field().value(), longitude->field().value()};
}

void SitePanel::focusLatitude()
{
    latitude->field().setFocus();
}

void SitePanel::commit()
{
    latitude->field().interpretText();
    longitude->field().interpretText();
}

void SitePanel::retranslate()
{
    latitudeName->setText(
        panelText(QT_TRANSLATE_NOOP("SitePanel", "Latitude: north positive, or N, S")));
    longitudeName->setText(
        panelText(QT_TRANSLATE_NOOP("SitePanel", "Longitude: east positive, or E, W")));
    latitude->setName(latitudeName->text());
    longitude->setName(longitudeName->text());
    use->setText(panelText(QT_TRANSLATE_NOOP(
        "SitePanel", "With the site, the assistant says which way each bolt must go.")));
}
} // namespace assistantwindow
