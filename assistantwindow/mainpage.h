// SPDX-License-Identifier: MIT
// The page with the picture, the advice and the figures of the stage.
#pragma once

#include "assistantwindow/askedexposure.h"
#include "assistantwindow/display.h"
#include "assistantwindow/indicators.h"
#include "assistantwindow/instrument.h"
#include "assistantwindow/skypicture.h"
#include "assistantwindow/touch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QPushButton;
class QSlider;
class QStackedWidget;
class QVBoxLayout;

namespace assistantwindow
{
class MainPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(MainPage)

public:
    explicit MainPage(QWidget *parent = nullptr);

    void show(const Display &display, const Snapshot &snapshot, bool isConnected,
              const assistant::History &history, const assistant::Settings &settings);
    void showCameras(const std::vector<CameraEntry> &cameras, const QString &chosen);
    void showExposure(const Snapshot &snapshot, Range range);
    void setTheme(const Theme &theme);
    void retranslate();
    /// Where the site's fields are while there is no camera; nothing if they are elsewhere.
    void hostSite(QWidget *sitePanel);
    QString chosenCamera() const;

    SkyPicture *picture;
    QPushButton *connectButton, *startAgainButton, *largeViewButton, *settingsButton, *reportButton,
        *siteButton;
    QPushButton *toReportButton; ///< beside the advice, from the goal on
    QCheckBox *automaticExposure;
    QComboBox *camera;
    std::function<void(double)> exposureMoved; ///< microseconds
    std::function<void(bool)> automaticChosen;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildHeader(QVBoxLayout &column);
    void buildExposure(QVBoxLayout &column);
    QWidget *connectPanel();
    QWidget *skyPanel();
    QWidget *axisPanel();
    QWidget *boltPanel();
    struct BoltRow {
        const char *bolt; ///< that the style sheet knows
        QColor Theme::*colour;
        QLabel *&name, *&way, *&sigma;
        BoltArrow *&arrow;
        QLabel *figure;
    };
    QWidget *boltRow(const BoltRow &row);
    void connectExposure();
    void showFigures(const Display &display);
    double seconds() const { return double(clock.elapsed()) / 1000.0; }

    QLabel *stage, *advice, *cameraName, *stars, *focus, *skyHint, *axisHint;
    QLabel *total, *altitude, *azimuth, *uncertainty;
    QLabel *totalName, *altitudeName, *azimuthName, *altitudeWay, *azimuthWay;
    QLabel *altitudeSigma, *azimuthSigma, *noSite, *exposureName, *exposureValue, *aim;
    BoltArrow *altitudeArrow, *azimuthArrow;
    QWidget *boltRows, *noSiteBox;
    QVBoxLayout *siteHost;
    QHBoxLayout *uncertaintyHosts[2];
    TurnRing *turn;
    ErrorPlot *plot;
    StageBars *bars;
    QSlider *exposure;
    QStackedWidget *panels;
    bool goalReached = false; ///< since the bolts' stage began
    Range exposureRange;
    AskedExposure asked;
    QElapsedTimer clock; ///< for `asked`
};

/// Whether the goal was reached in this stage: it stays so while the number wavers about it, below
/// an arcminute, and while there is no number.
bool isGoalReached(bool before, const Display &display);
/// How wide the panel beside the picture is on a page of this size, pixels.
int panelWidth(QSize page);
/// Whether figures can be larger than on the smallest screen.
bool isRoomy(QSize page);
/// Exposure slider: positions 0 to 1000, evenly in the logarithm.
int sliderOf(double microseconds, Range range);
double exposureOf(int position, Range range);
} // namespace assistantwindow
