// SPDX-License-Identifier: MIT
// The virtual mount's window: which fields set the site, the time, the weather and the camera's
// faults?
#include "virtualcamera/skykeys.h"
#include "virtualmount/fields.h"
#include "virtualmount/mountwindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <cmath>

namespace virtualmount
{
/// A slider for a number of the state.
struct MountWindow::Slider {
    double SkyState::*member;
    double stepsPerUnit; ///< steps per unit of the number
    int most;            ///< steps
    const char *name, *label;
    QString shown; ///< display text, with %1 for the steps
    const char *what;
};

/// A coordinate of the site with its direction: north and east are positive.
struct MountWindow::Coordinate {
    double SkyState::*member;
    double most; ///< degrees
    const char *name, *label, *positive, *negative, *what, *whichSide;
};

QCheckBox *MountWindow::checkBox(const QString &name, const QString &text,
                                 const std::function<bool(const SkyState &)> &isOn,
                                 const std::function<void(SkyState &, bool)> &set)
{
    auto *const box = new QCheckBox(text, this);
    box->setObjectName(name);
    connect(box, &QCheckBox::toggled, this,
            [this, set](bool on) { edit([&set, on](SkyState &state) { set(state, on); }); });
    fields.emplace_back([box, isOn](const SkyState &state) { showIn(*box, isOn(state)); });
    return box;
}

void MountWindow::addCoordinate(QGridLayout &grid, const Coordinate &row)
{
    auto *const box = new QDoubleSpinBox(this);
    nameWidget(*box, QLatin1String(row.name), tr(row.what));
    box->setRange(0.0, row.most);
    box->setDecimals(3);
    box->setSuffix(QStringLiteral("°"));
    box->setKeyboardTracking(false);
    watchField(*box);
    auto *const side = new QComboBox(this);
    nameWidget(*side, QLatin1String(row.name) + QStringLiteral("Side"), tr(row.whichSide));
    side->addItems({tr(row.positive), tr(row.negative)});
    watchField(*side);
    const auto set = [this, box, side, member = row.member] {
        const double size = box->value();
        const bool negative = side->currentIndex() == 1;
        edit([&](SkyState &state) { state.*member = negative && size > 0.0 ? -size : size; });
    };
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, set);
    connect(side, QOverload<int>::of(&QComboBox::activated), this, set);
    fields.emplace_back([box, side, member = row.member](const SkyState &state) {
        showIn(*box, std::abs(state.*member));
        showIn(*side, state.*member < 0.0 ? 1 : 0);
    });
    auto *const label = new QLabel(tr(row.label), this);
    label->setBuddy(box);
    const int line = grid.rowCount();
    grid.addWidget(label, line, 0);
    grid.addWidget(box, line, 1);
    grid.addWidget(side, line, 2);
}

QWidget *MountWindow::timeFields()
{
    timeMode = new QComboBox(this);
    nameWidget(*timeMode, QStringLiteral("timeMode"), tr("Which time it is"));
    timeMode->addItems({tr("Now"), tr("Runs from"), tr("Fixed at")});
    watchField(*timeMode);
    connect(timeMode, QOverload<int>::of(&QComboBox::activated), this, &MountWindow::setTimeMode);
    date = new QDateTimeEdit(this);
    nameWidget(*date, QStringLiteral("date"), tr("Date and time, UTC"), tr("Date and time, UTC"));
    date->setTimeSpec(Qt::UTC);
    date->setDateTimeRange(
        QDateTime(QDate(virtualsky::firstYear, 1, 1), QTime(0, 0), Qt::UTC),
        QDateTime(QDate(virtualsky::lastYear, 12, 31), QTime(23, 59, 59), Qt::UTC));
    date->setMinimumWidth(190); // the size hint excludes the style sheet's buttons
    date->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    date->setKeyboardTracking(false);
    watchField(*date);
    connect(date, &QDateTimeEdit::dateTimeChanged, this, &MountWindow::setDate);
    // Text being typed stays until editing is finished.
    auto *const text = date->findChild<QLineEdit *>();
    connect(date, &QDateTimeEdit::editingFinished, text, [text] { text->setModified(false); });
    return date;
}

QWidget *MountWindow::sitePanel()
{
    auto *const panel = new QGroupBox(tr("Site and time (UTC)"), this);
    QGridLayout &grid = gridIn(*panel);
    const Coordinate coordinates[] = {
        {&SkyState::latitude, 90.0, "latitude", QT_TR_NOOP("&Latitude"), QT_TR_NOOP("North"),
         QT_TR_NOOP("South"), QT_TR_NOOP("Latitude in degrees"),
         QT_TR_NOOP("Latitude: north or south")},
        {&SkyState::longitude, 180.0, "longitude", QT_TR_NOOP("L&ongitude"), QT_TR_NOOP("East"),
         QT_TR_NOOP("West"), QT_TR_NOOP("Longitude in degrees"),
         QT_TR_NOOP("Longitude: east or west")},
    };
    for (const Coordinate &row : coordinates)
        addCoordinate(grid, row);
    auto *const label = new QLabel(tr("&Date"), panel);
    const int line = grid.rowCount();
    QWidget *const edit = timeFields();
    label->setBuddy(timeMode);
    grid.addWidget(label, line, 0);
    grid.addWidget(timeMode, line, 2);
    grid.addWidget(edit, line, 1);
    QWidget::setTabOrder(timeMode, edit);
    grid.setColumnStretch(1, 1);
    return panel;
}

QSlider *MountWindow::addSlider(QGridLayout &grid, const Slider &row)
{
    auto *const slider = new QSlider(Qt::Horizontal, this);
    nameWidget(*slider, QLatin1String(row.name), tr(row.what));
    slider->setRange(0, row.most);
    slider->setPageStep(row.most / 10);
    watchField(*slider);
    connect(slider, &QSlider::valueChanged, this,
            [this, member = row.member, stepsPerUnit = row.stepsPerUnit](int steps) {
                edit([=](SkyState &state) { state.*member = double(steps) / stepsPerUnit; });
            });
    auto *const label = new QLabel(tr(row.label), this);
    label->setBuddy(slider);
    auto *const value = new QLabel(this);
    value->setMinimumWidth(44);
    fields.emplace_back([slider, value, member = row.member, stepsPerUnit = row.stepsPerUnit,
                         text = row.shown](const SkyState &s) {
        showIn(*slider, s.*member * stepsPerUnit);
        value->setText(text.arg(std::round(s.*member * stepsPerUnit), 0, 'f', 0));
    });
    const int line = grid.rowCount();
    grid.addWidget(label, line, 0);
    grid.addWidget(slider, line, 1);
    grid.addWidget(value, line, 2);
    return slider;
}

QWidget *MountWindow::weatherPanel()
{
    auto *const panel = new QGroupBox(tr("Weather"), this);
    QGridLayout &grid = gridIn(*panel);
    const Slider clouds = {&SkyState::clouds,
                           100.0,
                           100,
                           "clouds",
                           QT_TR_NOOP("&Clouds"),
                           tr("%1 %"),
                           QT_TR_NOOP("Clouds in percent")};
    const Slider moon = {&SkyState::moon,
                         100.0,
                         100,
                         "moon",
                         QT_TR_NOOP("&Moon"),
                         tr("%1 %"),
                         QT_TR_NOOP("Glow of the moon in percent")};
    const Slider seeing = {&SkyState::seeing,
                           1.0,
                           120,
                           "seeing",
                           QT_TR_NOOP("&Seeing"),
                           tr("%1″"),
                           QT_TR_NOOP("Seeing in seconds of arc")};
    cloudSlider = addSlider(grid, clouds);
    passing = new QCheckBox(tr("&Passing"), panel);
    nameWidget(*passing, QStringLiteral("passing"), tr("Clouds come and go"),
               tr("Clouds come and go"));
    connect(passing, &QCheckBox::toggled, this, &MountWindow::setPassing);
    grid.addWidget(passing, grid.rowCount() - 1, 3);
    addSlider(grid, moon);
    QCheckBox *const refraction = checkBox(
        QStringLiteral("refraction"), tr("Re&fraction"),
        [](const SkyState &state) { return state.refraction; },
        [](SkyState &state, bool on) { state.refraction = on; });
    grid.addWidget(refraction, grid.rowCount() - 1, 3);
    addSlider(grid, seeing);
    return panel;
}

QWidget *MountWindow::faultPanel()
{
    auto *const panel = new QGroupBox(tr("Camera"), this);
    QGridLayout &grid = gridIn(*panel);
    QCheckBox *const unplugged = checkBox(
        QStringLiteral("unplugged"), tr("&Unplugged"),
        [](const SkyState &state) { return state.unplugged; },
        [](SkyState &state, bool on) { state.unplugged = on; });
    QCheckBox *const slow = checkBox(
        QStringLiteral("slow"), tr("Slo&w USB"),
        [](const SkyState &state) { return state.slow > 0.0; },
        [](SkyState &state, bool on) { state.slow = on ? slowUsbSeconds : 0.0; });
    grid.addWidget(unplugged, 0, 0);
    grid.addWidget(slow, 0, 1);
    return panel;
}
} // namespace virtualmount
