// SPDX-License-Identifier: MIT
// Shows a display on the main page.
#include "assistantwindow/mainpage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace assistantwindow
{
namespace
{
constexpr int sliderSteps = 1000;

/// Text and properties of one of the three error labels.
void showFigure(QLabel &label, const Figure &figure)
{
    label.setText(figure.text);
    label.setProperty("arcseconds", figure.arcseconds ? QVariant(*figure.arcseconds) : QVariant());
    label.setProperty("sigma",
                      figure.sigmaArcseconds ? QVariant(*figure.sigmaArcseconds) : QVariant());
}

/// A property that the style sheet looks at.
void setLook(QWidget &widget, const char *property, const QVariant &value)
{
    if (widget.property(property) == value)
        return;
    widget.setProperty(property, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

void setMood(QLabel &label, AdviceMood mood)
{
    const char *const moods[] = {"calm", "warning", "good"};
    setLook(label, "mood", QLatin1String(moods[int(mood)]));
}

void setTextOnce(QLabel &label, const QString &text)
{
    if (label.text() != text)
        label.setText(text);
}
} // namespace

int sliderOf(double microseconds, Range range)
{
    if (!(range.least > 0.0) || !(range.greatest > range.least) || !(microseconds > 0.0))
        return 0;
    const double share =
        std::log(microseconds / range.least) / std::log(range.greatest / range.least);
    return int(std::lround(std::clamp(share, 0.0, 1.0) * sliderSteps));
}

double exposureOf(int position, Range range)
{
    if (!(range.least > 0.0) || !(range.greatest > range.least))
        return 0.0;
    return range.least * std::pow(range.greatest / range.least, double(position) / sliderSteps);
}

bool isGoalReached(bool before, const Display &display)
{
    constexpr double farAgain = 60.0; // arcseconds
    const bool isFar = display.total.arcseconds && *display.total.arcseconds >= farAgain;
    return display.stage == assistant::Stage::Bolts && (display.aligned || (before && !isFar));
}

void MainPage::show(const Display &display, const Snapshot &snapshot, bool isConnected,
                    const assistant::History &history, const assistant::Settings &settings)
{
    setTextOnce(*stage, display.stageText);
    setTextOnce(*advice, display.advice);
    setMood(*advice, display.mood);
    bars->show(display.stage, display.aligned);
    connectButton->setText(isConnected ? tr("Disconnect") : tr("Connect"));
    setLook(*connectButton, "main", !isConnected);
    startAgainButton->setEnabled(isConnected);
    panels->setCurrentIndex(int(display.stage));
    picture->show(snapshot, boltLegs(snapshot.status, settings.site));
    picture->setCaption(display.hint, display.hintReason, display.hintCanBeDismissed);
    setTextOnce(*aim, display.aim);
    setTextOnce(*stars, display.stars);
    setTextOnce(*focus, display.focus);
    showFigures(display);
    boltRows->setVisible(settings.site.has_value());
    noSiteBox->setVisible(!settings.site.has_value());
    plot->show(history.points(), settings.goalArcseconds, snapshot.status.steadySeconds);
    const bool hasReport = !history.points().empty();
    reportButton->setEnabled(hasReport);
    goalReached = isGoalReached(goalReached, display) && hasReport;
    toReportButton->setVisible(goalReached);
}

void MainPage::showFigures(const Display &display)
{
    showFigure(*total, display.total);
    showFigure(*altitude, display.altitude);
    showFigure(*azimuth, display.azimuth);
    setTextOnce(*altitudeSigma, display.altitude.sigma);
    setTextOnce(*azimuthSigma, display.azimuth.sigma);
    setTextOnce(*altitudeWay, wayText(display.ways.altitude));
    setTextOnce(*azimuthWay, wayText(display.ways.azimuth));
    setLook(*altitudeWay, "good", display.ways.altitude == Way::Stay);
    setLook(*azimuthWay, "good", display.ways.azimuth == Way::Stay);
    altitudeArrow->show(display.ways.altitude, display.ways.altitudeSide, display.altitudeArrow);
    azimuthArrow->show(display.ways.azimuth, display.ways.azimuthSide, display.azimuthArrow);
    setTextOnce(*uncertainty, display.uncertainty);
    QHBoxLayout *const host = uncertaintyHosts[display.stage == assistant::Stage::Axis ? 0 : 1];
    if (host->indexOf(uncertainty) < 0)
        host->insertWidget(1, uncertainty);
    turn->setText(display.axisTurn);
    turn->show(display.axisShare, display.axisEnough);
}

int panelWidth(QSize page)
{
    // Beside a picture of four by three that is as high as the page leaves it.
    const int pictureHeight = page.height() - 180;
    return std::clamp(page.width() - 24 - pictureHeight * 4 / 3, 330, 560);
}

bool isRoomy(QSize page)
{
    return page.width() >= 1200 && page.height() >= 680;
}

void MainPage::resizeEvent(QResizeEvent *)
{
    panels->setFixedWidth(panelWidth(size()));
    const int arrow = isRoomy(size()) ? 104 : 60;
    altitudeArrow->setFixedSize(arrow, arrow);
    azimuthArrow->setFixedSize(arrow, arrow);
    for (QLabel *const label : {advice, total, altitude, azimuth, altitudeWay, azimuthWay, stars,
                                focus, uncertainty, altitudeSigma, azimuthSigma, aim})
        setLook(*label, "roomy", isRoomy(size()));
}

void MainPage::showCameras(const std::vector<CameraEntry> &cameras, const QString &chosen)
{
    camera->setVisible(cameras.size() > 1);
    cameraName->setVisible(cameras.size() > 1);
    const QSignalBlocker quiet(camera);
    const QString before = chosenCamera().isEmpty() ? chosen : chosenCamera();
    camera->clear();
    for (const CameraEntry &entry : cameras)
        camera->addItem(entry.name, entry.id);
    camera->setCurrentIndex(std::max(0, camera->findData(before)));
}

QString MainPage::chosenCamera() const
{
    return camera->currentData().toString();
}

void MainPage::showExposure(const Snapshot &snapshot, Range range)
{
    exposureRange = range;
    const double now = snapshot.status.exposureMicroseconds;
    const bool isAwaited = asked.isAwaited(now, snapshot.status.automaticExposure, seconds());
    if (isAwaited || exposure->isSliderDown())
        return;
    const QSignalBlocker quiet(exposure), quietBox(automaticExposure);
    exposure->setValue(sliderOf(now, range));
    setTextOnce(*exposureValue, exposureText(now, locale()));
    automaticExposure->setChecked(snapshot.status.automaticExposure);
}

void MainPage::hostSite(QWidget *sitePanel)
{
    siteHost->insertWidget(0, sitePanel);
    sitePanel->show();
}

void MainPage::setTheme(const Theme &theme)
{
    picture->setTheme(theme);
    turn->setTheme(theme);
    plot->setTheme(theme);
    bars->setTheme(theme);
    altitudeArrow->setTheme(theme);
    azimuthArrow->setTheme(theme);
    largeViewButton->setIcon(glyphIcon(Glyph::Expand, theme));
    settingsButton->setIcon(glyphIcon(Glyph::Settings, theme));
    reportButton->setIcon(glyphIcon(Glyph::Report, theme));
    toReportButton->setIcon(glyphIcon(Glyph::Report, theme));
}
} // namespace assistantwindow
