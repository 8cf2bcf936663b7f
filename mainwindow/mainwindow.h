// SPDX-License-Identifier: MIT
// The main window: who owns what, and which signals and slots are there?
#pragma once

#include "camera/cameraclosing.h"
#include "camera/camerahandle.h"
#include "camera/capturethread.h"
#include "camera/picturemaker.h"
#include "geometry/templaterings.h"
#include "mainwindow/alignmentprogress.h"
#include "mainwindow/pagebutton.h"

#include <QElapsedTimer>
#include <QImage>
#include <QMainWindow>
#include <QPoint>
#include <QPointF>
#include <QTranslator>
#include <memory>
#include <optional>

class AboutDialog;
class AstroRefractionDialog;
class FavoriteDialog;
class MagnifierWidget;
class NoticeLabel;
class PoleTrackingDialog;
class QGraphicsDropShadowEffect;
class QLabel;
class QMediaPlayer;
class QSlider;
class QTabWidget;
class QTimer;
enum class Section;
struct NoticeFacts;
struct Settings;
struct StarCatalogue;
struct Style;
struct WizardPage;
struct WizardStep;

namespace cv
{
class Mat;
}

namespace Ui
{
class MainWindow;
}

/// Owns all other objects and all state of the program, except the process-wide records. The class
/// is split into several files, one per concern.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param shared outlives the window
    /// @param anglesAt UTC in seconds since 1970: the template stars' angles are computed for this
    /// date; without it the built-in ones are used
    explicit MainWindow(Session &shared, QWidget *parent = nullptr,
                        std::optional<double> anglesAt = {});
    ~MainWindow() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Asks the capture thread to stop and waits for it. False if the camera library does not
    /// return from a call; the window must not be destroyed then.
    bool stopCaptureAndWait();
    /// From now on, closing waits at most that many milliseconds for a call of the camera library
    /// in another thread.
    void hurry(int milliseconds) { closingTimeout = milliseconds; }
    /// The wizard's step, 1 to 13; 1 after construction.
    int step() const { return currentStep; }

signals:
    void initAstroRefraction();
    void changeLanguage();
    void resetUI();

private slots:
    // wizard.cpp: section headers and page buttons
    void on_pushButton_head_region_toggled(bool checked);
    void on_pushButton_head_setting_toggled(bool checked);
    void on_pushButton_head_confirm_toggled(bool checked);
    void on_pushButton_head_rough_toggled(bool checked);
    void on_pushButton_head_precise_toggled(bool checked);
    void pushbuttonSettingDoneClicked();
    void pushbuttonConfirmDoneClicked();
    void pushbuttonRotateStar1ResetClicked();
    void pushbuttonRotateStar1DoneClicked();
    void pushbuttonGetStar2ResetClicked();
    void pushbuttonRotateStar2ResetClicked();
    void pushbuttonRotateStar2DoneClicked();
    void pushbuttonGetStar3ResetClicked();
    void pushbuttonValidateCenterResetClicked();
    void pushbuttonValidateCenterDoneClicked();
    void pushbuttonGetEptPolarisDoneClicked();
    void pushbuttonMovePolarisDoneClicked();
    // monitormode.cpp
    void pushbuttonGetCurPolarisDoneClicked();
    // wizard.cpp
    void pushbuttonFinetunePoleResetClicked();
    void pushbuttonFinetunePoleDoneClicked();
    // framedisplay.cpp: a timer
    void showImages();
    // wizard.cpp: two timers
    void increaseAngleTimeout();
    void graphicsEffectTimeout();
    // framedisplay.cpp: a timer
    void updateFPS();
    // monitormode.cpp
    void poleTracking(double degree);
    // texts.cpp
    void languageChanged();
    void uiReset();
    // region.cpp
    void on_radioButton_north_toggled(bool checked);
    void on_radioButton_south_toggled(bool checked);
    // templateoverlay.cpp: rotate sliders and their buttons
    void on_horizontalSlider_confirm_match_valueChanged(int value);
    void on_pushButton_confirm_minus_clicked();
    void on_pushButton_confirm_add_clicked();
    void on_horizontalSlider_rough_match_valueChanged(int value);
    void on_pushButton_rough_minus_clicked();
    void on_pushButton_rough_add_clicked();
    // monitormode.cpp
    void on_pushButton_monitor_clicked();
    // menuactions.cpp
    void on_actionSave_As_triggered();
    void on_actionExit_triggered();
    // cameraconnection.cpp
    void on_actionConnect_triggered();
    // menuactions.cpp
    void on_actionDisplay_Template_toggled(bool checked);
    void on_actionMono_Style_toggled(bool arg1);
    void on_actionStretch_toggled(bool checked);
    void on_actionAstronomical_Refraction_triggered();
    void on_actionManual_Trace_triggered();
    // templateoverlay.cpp: zoom
    void on_action100_toggled(bool checked);
    void on_action75_toggled(bool checked);
    void on_action50_toggled(bool checked);
    // menuactions.cpp
    void on_actionQuorvandel_Manual_triggered();
    void on_actionAbout_triggered();
    // texts.cpp: languages
    void on_actionEnglish_toggled(bool checked);
    void on_actionChinese_toggled(bool checked);
    void on_actionJapanese_toggled(bool checked);
    void on_actionRussian_toggled(bool checked);
    void on_actionFrench_toggled(bool checked);
    void on_actionGerman_toggled(bool checked);
    void on_actionSpanish_toggled(bool checked);
    void on_actionPortuguese_toggled(bool checked);
    void on_actionItalian_toggled(bool checked);
    void on_actionKorean_toggled(bool checked);
    // capturecontrols.cpp: camera parameters
    void on_sliderExpose_valueChanged(int value);
    void on_lineEditExpose_returnPressed();
    void on_sliderGain_valueChanged(int value);
    void on_lineEditGain_returnPressed();
    void on_sliderTraffic_valueChanged(int value);
    void on_lineEditTraffic_returnPressed();
    void on_sliderSpeed_valueChanged(int value);
    void on_lineEditSpeed_returnPressed();
    // menuactions.cpp
    void on_actionFavorite_triggered();
    void on_actionPlay_Audio_toggled(bool checked);
    void on_actionPlay_Audio_triggered();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    friend class MainWindowProbe; // reads and sets the state in tests

    // construction.cpp
    void buildImageArea();
    void guardSliders();
    void buildShadows();
    void buildActionGroups();
    void buildStatusBar();
    void buildDialogs();
    void connectSignals();
    void startTimers();
    void loadStarCatalogue();
    void applyStyle();
    void showStyle(const Style &style);
    void applyZoomAction();
    void applyLanguageAction();
    void applyIdleState();
    void buildValidators();
    void buildPlayer();
    void initialiseSdk();

    // wizardpages.cpp
    void buildWizardPages();
    void buildWizardPage(const WizardPage &page);
    void applyPageTexts();
    void applyRegionTexts();
    void placeImageOverlays();

    // wizard.cpp
    void switchStep(int step);
    void keepFocus(int step);
    void openSections(unsigned open);
    void showLamps(int lit);
    void setOverlayFlags(const WizardStep &step);
    void sectionToggled(Section section, bool checked);

    // settings.cpp
    bool loadSettings();
    Settings currentSettings() const;
    void noteSettings();
    void saveSettings();
    void applySettings(const Settings &settings);
    void setStyleName(const QString &name);

    // cameraconnection.cpp
    void connectCamera();
    void disconnectCamera();
    bool chooseCamera();
    bool openCamera();
    void configureCamera();
    void showCameraParameters();
    void showConnected(bool connected);
    void showNotFound();
    int sdkCallTimeout() const;
    void followClosing();
    void showDisconnected(CameraClosing::State state);

    // imagepicking.cpp
    bool imageEvent(QEvent *event);
    bool pageEvent(QEvent *event);
    void followPointer(QPoint view);
    void pickStar(QPoint view);
    void placeTemplateAt(QPoint view);
    void pickPoleStar(QPoint view, QPointF star);
    void pickThirdStar(QPointF star);

    // templateoverlay.cpp
    void computeTemplatePoles();
    void rotateTemplate(int angle);
    void showFlatTemplate();
    void showPolarisTarget();
    void scaleDirectionArrow();
    QPointF placeInView() const;
    void scrollTo(QPointF framePosition);
    void setZoom(float factor);
    void stepRotation(QSlider &slider, int degrees, void (MainWindow::*turned)(int));

    // region.cpp
    bool isSouth() const;
    const QImage &regionMask() const;
    const StarCatalogue &regionCatalogue() const;
    void applyRegion();
    void changeRegion(const char *name);

    // capturecontrols.cpp
    struct Parameter;
    void buildPlaceholders();
    Parameter exposureParameter();
    Parameter gainParameter();
    Parameter trafficParameter();
    Parameter speedParameter();
    void parameterSliderMoved(const Parameter &parameter, int value);
    void parameterTyped(const Parameter &parameter);

    // noticefacts.cpp
    void buildNotice();
    void showNotice();
    NoticeFacts noticeFacts() const;
    void lookAtFrame(NoticeFacts &facts) const;
    TemplateFit fitOfTemplate(const cv::Mat &frame) const;
    bool isRingUnderMagnifier() const;
    int trackingDialAngle() const;

    // texts.cpp
    void chooseLanguage(const char *code, bool checked);

    std::unique_ptr<Ui::MainWindow> ui;
    Session &session;

    int currentStep = 0;
    float zoomFactor = 1.0F;
    int rotateValue = 0;    ///< template angle, degrees 0..360, clockwise on the screen
    QPoint clickViewPos;    ///< template centre in view pixels
    QPointF templateCenter; ///< template centre in frame pixels
    QPointF starPos1, starPos2, starPos3; ///< one star at three RA angles, frame pixels
    QPointF axisCenter;                   ///< fitted RA axis, frame pixels
    int axisRadius = 0;                   ///< of the circle through the three picks, frame pixels
    QPointF polarisPos;                   ///< the picked pole star, frame pixels
    QPointF starAStart, starBStart;       ///< reference stars as found when monitoring was prepared
    QString regionName;                   ///< "North" or "South"
    QString languageCode;                 ///< "EN", "ZH", ...
    QString styleName;                    ///< "Color" or "Mono"

    /// Is scrolled to the middle of the view with the next picture, frame pixels.
    std::optional<QPointF> placeWithNextPicture;
    bool libraryHangs = false; ///< a call did not return during the last close operation
    int closingTimeout = CameraHandle::sdkCallTimeout; ///< milliseconds
    ButtonPress buttonPress;                           ///< last press of a page's button
    AlignmentProgress progress;
    QElapsedTimer sinceLastPicture; ///< or since the camera was connected

    QImage blankImage;   ///< what the magnifier shows without a camera
    QImage displayImage; ///< the last displayed picture at its zoom; Save As writes it
    QImage northMask, southMask;

    QTabWidget *tipTabs = nullptr;
    QLabel *directionArrow = nullptr;
    QLabel *positionLabel = nullptr;
    QLabel *fpsLabel = nullptr;
    NoticeLabel *noticeLabel = nullptr;
    MagnifierWidget *magnifier = nullptr;
    QGraphicsDropShadowEffect *sliderShadow = nullptr;
    QGraphicsDropShadowEffect *roughSliderShadow = nullptr;
    QTimer *frameTimer = nullptr;
    QTimer *fpsTimer = nullptr;
    QTimer *angleTimer = nullptr;
    QTimer *effectTimer = nullptr;
    AboutDialog *aboutDialog = nullptr;
    AstroRefractionDialog *refractionDialog = nullptr;
    PoleTrackingDialog *trackingDialog = nullptr;
    FavoriteDialog *favoriteDialog = nullptr;
    QTranslator *translator = nullptr;
    QMediaPlayer *player = nullptr;
    CameraClosing cameraClosing{session};
    /// Declared last, so that it is stopped before any other member is destroyed.
    std::unique_ptr<PictureMaker> pictureMaker; // outlives the thread
    std::unique_ptr<CaptureThread> captureThread;
};
