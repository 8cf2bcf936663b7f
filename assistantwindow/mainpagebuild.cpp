// SPDX-License-Identifier: MIT
// Which widgets does the main page have, and what are they called?
#include "assistantwindow/mainpage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace assistantwindow
{
namespace
{
QLabel *label(const char *name, const char *look = nullptr)
{
    auto *const made = new QLabel;
    made->setObjectName(QLatin1String(name));
    if (look)
        made->setProperty(look, true);
    return made;
}

QLabel *wrapped(const char *name, const char *look = nullptr)
{
    QLabel *const made = label(name, look);
    made->setWordWrap(true);
    return made;
}

QPushButton *button(const char *name, QWidget *parent)
{
    auto *const made = new QPushButton(parent);
    made->setObjectName(QLatin1String(name));
    made->setMinimumSize(touchSize, touchSize);
    made->setIconSize({24, 24});
    return made;
}

QVBoxLayout *columnOf(QWidget &widget, int spacing)
{
    auto *const column = new QVBoxLayout(&widget);
    column->setContentsMargins(10, 8, 10, 8);
    column->setSpacing(spacing);
    return column;
}
} // namespace

MainPage::MainPage(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("mainPage"));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(8, 6, 8, 8);
    column->setSpacing(6);
    buildHeader(*column);
    advice = wrapped("label_advice", "advice");
    advice->setMinimumHeight(58);
    advice->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    toReportButton = button("pushButton_toReport", this);
    toReportButton->hide();
    auto *const sentence = new QHBoxLayout;
    sentence->addWidget(advice, 1);
    sentence->addWidget(toReportButton);
    column->addLayout(sentence);
    auto *const row = new QHBoxLayout;
    row->setSpacing(8);
    auto *const left = new QVBoxLayout;
    left->setSpacing(6);
    picture = new SkyPicture;
    left->addWidget(picture, 1);
    buildExposure(*left);
    row->addLayout(left, 13);
    panels = new QStackedWidget;
    panels->setObjectName(QStringLiteral("panels"));
    panels->setFixedWidth(330);
    for (QWidget *const panel : {connectPanel(), skyPanel(), axisPanel(), boltPanel()})
        panels->addWidget(panel);
    row->addWidget(panels);
    column->addLayout(row, 1);
    retranslate();
}

void MainPage::buildHeader(QVBoxLayout &column)
{
    auto *const row = new QHBoxLayout;
    row->setSpacing(6);
    auto *const names = new QVBoxLayout;
    names->setSpacing(2);
    stage = label("label_stage", "stage");
    bars = new StageBars;
    names->addWidget(stage);
    names->addWidget(bars);
    row->addLayout(names);
    row->addStretch(1);
    connectButton = button("pushButton_connect", this);
    startAgainButton = button("pushButton_startAgain", this);
    reportButton = button("pushButton_report", this);
    settingsButton = button("pushButton_settings", this);
    largeViewButton = button("pushButton_largeView", this);
    for (QPushButton *const each :
         {connectButton, startAgainButton, reportButton, settingsButton, largeViewButton})
        row->addWidget(each);
    connectButton->setProperty("main", true);
    column.addLayout(row);
}

void MainPage::buildExposure(QVBoxLayout &column)
{
    auto *const row = new QHBoxLayout;
    row->setSpacing(8);
    exposureName = label("label_exposureName", "quiet");
    exposure = new QSlider(Qt::Horizontal);
    exposure->setObjectName(QStringLiteral("slider_exposure"));
    exposure->setRange(0, 1000);
    exposure->setPageStep(50);
    exposure->setSingleStep(10);
    exposure->setMinimumHeight(touchSize);
    exposureValue = label("label_exposure");
    exposureValue->setMinimumWidth(64);
    exposureValue->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    automaticExposure = new BigCheck(QStringLiteral("checkBox_automaticExposure"));
    row->addWidget(exposureName);
    row->addWidget(exposure, 1);
    row->addWidget(exposureValue);
    row->addWidget(automaticExposure);
    column.addLayout(row);
    connectExposure();
}

void MainPage::connectExposure()
{
    clock.start();
    connect(exposure, &QSlider::valueChanged, this, [this](int position) {
        const double microseconds = exposureOf(position, exposureRange);
        asked.ask(microseconds, seconds());
        exposureValue->setText(exposureText(microseconds, locale()));
        const QSignalBlocker quiet(automaticExposure);
        automaticExposure->setChecked(false);
        if (exposureMoved)
            exposureMoved(microseconds);
    });
    connect(automaticExposure, &QCheckBox::toggled, this, [this](bool isOn) {
        asked.ask(isOn ? std::optional<double>()
                       : std::optional<double>(exposureOf(exposure->value(), exposureRange)),
                  seconds());
        if (automaticChosen)
            automaticChosen(isOn);
    });
}

QWidget *MainPage::connectPanel()
{
    auto *const panel = new QFrame;
    QVBoxLayout *const column = columnOf(*panel, 6);
    cameraName = label("label_camera", "caption");
    camera = new QComboBox;
    camera->setObjectName(QStringLiteral("comboBox_camera"));
    camera->setMinimumHeight(touchSize);
    // Unlike the box's own one, it looks at the style sheet's height of an item.
    camera->setItemDelegate(new QStyledItemDelegate(camera));
    column->addWidget(cameraName);
    column->addWidget(camera);
    siteHost = new QVBoxLayout;
    column->addLayout(siteHost);
    column->addStretch(1);
    return panel;
}

QWidget *MainPage::skyPanel()
{
    auto *const panel = new QFrame;
    QVBoxLayout *const column = columnOf(*panel, 10);
    stars = wrapped("label_stars", "strong");
    focus = wrapped("label_focus", "strong");
    skyHint = wrapped("label_skyHint", "quiet");
    column->addWidget(stars);
    column->addWidget(focus);
    column->addStretch(1);
    column->addWidget(skyHint);
    return panel;
}

QWidget *MainPage::axisPanel()
{
    auto *const panel = new QFrame;
    QVBoxLayout *const column = columnOf(*panel, 6);
    turn = new TurnRing;
    column->addWidget(turn, 1);
    uncertaintyHosts[0] = new QHBoxLayout;
    uncertaintyHosts[0]->addStretch(1);
    uncertaintyHosts[0]->addStretch(1);
    column->addLayout(uncertaintyHosts[0]);
    axisHint = wrapped("label_axisHint", "quiet");
    axisHint->setAlignment(Qt::AlignCenter);
    column->addWidget(axisHint);
    return panel;
}

QWidget *MainPage::boltRow(const BoltRow &row)
{
    auto *const box = new QWidget;
    auto *const grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(0);
    row.arrow = new BoltArrow(row.colour);
    row.arrow->setFixedSize(60, 60);
    row.name = label("", "caption");
    row.way = label("", "way");
    row.sigma = label("", "quiet");
    // As in the picture.
    for (QLabel *const each : {row.name, row.way})
        each->setProperty("bolt", QLatin1String(row.bolt));
    grid->addWidget(row.arrow, 0, 0, 2, 1);
    grid->addWidget(row.name, 0, 1);
    grid->addWidget(row.way, 1, 1);
    grid->addWidget(row.figure, 0, 2, Qt::AlignRight | Qt::AlignBottom);
    grid->addWidget(row.sigma, 1, 2, Qt::AlignRight | Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    return box;
}

QWidget *MainPage::boltPanel()
{
    auto *const panel = new QFrame;
    QVBoxLayout *const column = columnOf(*panel, 4);
    totalName = label("label_totalName", "caption");
    total = label("label_totalError", "figure");
    altitude = label("label_altitudeError", "part");
    azimuth = label("label_azimuthError", "part");
    uncertainty = label("label_uncertainty", "quiet");
    column->addWidget(totalName);
    uncertaintyHosts[1] = new QHBoxLayout;
    uncertaintyHosts[1]->addWidget(total);
    uncertaintyHosts[1]->addWidget(uncertainty, 0, Qt::AlignBottom);
    uncertaintyHosts[1]->addStretch(1);
    column->addLayout(uncertaintyHosts[1]);
    boltRows = new QWidget;
    auto *const rows = new QVBoxLayout(boltRows);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(6);
    rows->addWidget(boltRow({"altitude", &Theme::altitude, altitudeName, altitudeWay, altitudeSigma,
                             altitudeArrow, altitude}));
    rows->addWidget(boltRow({"azimuth", &Theme::azimuth, azimuthName, azimuthWay, azimuthSigma,
                             azimuthArrow, azimuth}));
    column->addWidget(boltRows);
    noSiteBox = new QWidget;
    auto *const box = new QVBoxLayout(noSiteBox);
    box->setContentsMargins(0, 0, 0, 0);
    noSite = wrapped("label_noSite", "quiet");
    siteButton = button("pushButton_site", noSiteBox);
    box->addWidget(noSite);
    box->addWidget(siteButton);
    column->addWidget(noSiteBox);
    aim = wrapped("label_aim", "aim");
    column->addWidget(aim);
    plot = new ErrorPlot;
    column->addWidget(plot, 1);
    return panel;
}

void MainPage::retranslate()
{
    startAgainButton->setText(tr("Start again"));
    cameraName->setText(tr("Camera"));
    exposureName->setText(tr("Exposure"));
    automaticExposure->setText(tr("Automatic"));
    totalName->setText(tr("Total error"));
    altitudeName->setText(tr("Altitude"));
    azimuthName->setText(tr("Azimuth"));
    siteButton->setText(tr("Enter the site"));
    noSite->setText(tr("Turn the bolts until the arrow in the picture is gone. With the site, the "
                       "assistant says which way each bolt must go."));
    skyHint->setText(tr("The camera must see the pole; it need not be in the middle."));
    axisHint->setText(tr("%1 are enough, %2 if the axis is then known to %3. Further turning makes "
                         "it more exact.")
                          .arg(degreesText(assistant::enoughTurn, locale()),
                               degreesText(recognition::minTurn, locale()),
                               locale().toString(assistant::enoughSigma) + QStringLiteral("″")));
    toReportButton->setText(tr("Report"));
    toReportButton->setToolTip(QStringLiteral("F9"));
    const auto name = [](QPushButton &each, const QString &text, const QString &key) {
        each.setAccessibleName(text);
        each.setToolTip(text + QStringLiteral(" (") + key + QLatin1Char(')'));
    };
    name(*reportButton, tr("Report"), QStringLiteral("F9"));
    name(*settingsButton, tr("Settings"), QStringLiteral("F10"));
    name(*largeViewButton, tr("Large view"), QStringLiteral("F11"));
    connectButton->setToolTip(QStringLiteral("F2"));
    startAgainButton->setToolTip(QStringLiteral("F5"));
    exposure->setAccessibleName(tr("Exposure"));
    picture->retranslate();
    picture->setAccessibleName(tr("Live picture; a tap opens the large view"));
    camera->setAccessibleName(tr("Camera"));
}
} // namespace assistantwindow
