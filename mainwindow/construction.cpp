// SPDX-License-Identifier: MIT
// How is the window built and destroyed, and in which order?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "camera/veldix.h"
#include "core/languages.h"
#include "core/saturate.h"
#include "core/settingsfile.h"
#include "core/style.h"
#include "dialogs/aboutdialog.h"
#include "dialogs/astrorefractiondialog.h"
#include "dialogs/favoritedialog.h"
#include "dialogs/poletrackingdialog.h"
#include "geometry/anglesofdate.h"
#include "geometry/starcatalogue.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"
#include "widgets/magnifierwidget.h"
#include "widgets/returnpresses.h"
#include "widgets/wheelguard.h"

#include <QActionGroup>
#include <QDate>
#include <QGraphicsDropShadowEffect>
#include <QGridLayout>
#include <QLabel>
#include <QMediaPlayer>
#include <QMediaPlaylist>
#include <QRegExpValidator>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>
#include <QtDebug>

namespace
{
constexpr float magnifierZoom = 5.0F;
constexpr int magnifierSide = 150;
constexpr int shadowBlur = 20;
const QSize statusLabelSize(85, 18);
const QPointF frameCentre(640.0, 480.0);

QTimer *makeTimer(QObject *parent, int milliseconds)
{
    auto *const timer = new QTimer(parent);
    timer->setInterval(milliseconds);
    return timer;
}
} // namespace

MainWindow::MainWindow(Session &shared, QWidget *parent, std::optional<double> anglesAt)
    : QMainWindow(parent),
      ui(std::make_unique<Ui::MainWindow>()),
      session(shared),
      blankImage(int(frameWidthDefault), int(frameHeightDefault), QImage::Format_ARGB32)
{
    ui->setupUi(this);
    blankImage.fill(Qt::transparent);
    buildImageArea();
    guardSliders();
    buildShadows();
    buildWizardPages();
    new ReturnPresses(*this); // owned by the window
    buildActionGroups();
    buildStatusBar();
    buildDialogs();
    connectSignals();
    startTimers();
    setCameraDefaults(session.camera);
    currentStep = 0;
    loadStarCatalogue();
    if (anglesAt) {
        takeAnglesOfDate(northCatalogue, false, *anglesAt);
        takeAnglesOfDate(southCatalogue, true, *anglesAt);
    }
    computeTemplatePoles();
    if (!loadSettings())
        applySettings(Settings());
    clickViewPos = QPoint(saturatingInt(frameCentre.x() * double(zoomFactor)),
                          saturatingInt(frameCentre.y() * double(zoomFactor)));
    templateCenter = frameCentre;
    applyRegion();
    applyStyle();
    applyZoomAction();
    emit initAstroRefraction();
    applyLanguageAction();
    applyIdleState();
    buildValidators();
    buildPlaceholders();
    buildPlayer();
    initialiseSdk();
    showNotice();
}

MainWindow::~MainWindow()
{
    // Not while the window's children are being destroyed.
    ui->scrollArea_showImg->viewport()->removeEventFilter(tipTabs);
}

void MainWindow::buildImageArea()
{
    magnifier = new MagnifierWidget(magnifierSide, magnifierSide, ui->scrollArea_showImg);
    magnifier->setZoom(magnifierZoom);
    magnifier->setSource(QPixmap());
    magnifier->update();

    directionArrow = new QLabel(ui->scrollArea_showImg);
    directionArrow->setObjectName(QStringLiteral("directionArrow"));
    directionArrow->setAttribute(Qt::WA_TransparentForMouseEvents);

    northMask.load(QStringLiteral(":/images/north_mask.png"));
    southMask.load(QStringLiteral(":/images/south_mask.png"));

    auto *const layout = new QGridLayout(ui->scrollAreaWidgetContents_showImg);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(ui->label_showImg, 0, 0, Qt::AlignLeft | Qt::AlignTop);
    ui->label_showImg->installEventFilter(this);
    for (QLabel *const label : {ui->label_showImg, ui->label_templateImg})
        label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    ui->label_templateImg->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui->label_templateImg->raise();
}

void MainWindow::guardSliders()
{
    auto *const guard = new WheelGuard(this);
    for (QSlider *const slider : ui->scrollArea_manager->findChildren<QSlider *>())
        slider->installEventFilter(guard);
}

void MainWindow::buildShadows()
{
    const auto makeShadow = [this](QWidget *slider) {
        auto *const shadow = new QGraphicsDropShadowEffect(this);
        shadow->setBlurRadius(shadowBlur);
        shadow->setOffset(0, 0);
        shadow->setColor(styleNamed(QString()).glow);
        shadow->setEnabled(false);
        slider->setGraphicsEffect(shadow);
        return shadow;
    };
    sliderShadow = makeShadow(ui->horizontalSlider_confirm_match);
    roughSliderShadow = makeShadow(ui->horizontalSlider_rough_match);
}

void MainWindow::buildActionGroups()
{
    auto *const zoom = new QActionGroup(ui->menuZoom);
    for (QAction *const action : {ui->action100, ui->action75, ui->action50})
        zoom->addAction(action);
    zoom->setExclusive(true);
    ui->action100->setChecked(true);

    auto *const language = new QActionGroup(ui->menuLanguage);
    for (const Language &each : languages)
        language->addAction(findChild<QAction *>(each.action));
    language->setExclusive(true);
    ui->actionEnglish->setChecked(true);
}

void MainWindow::buildStatusBar()
{
    const auto makeLabel = [this](const char *name) {
        auto *const label = new QLabel(ui->statusBar);
        label->setObjectName(name);
        label->setFrameStyle(QFrame::NoFrame);
        label->setFixedSize(statusLabelSize);
        ui->statusBar->addWidget(label);
        return label;
    };
    positionLabel = makeLabel("positionLabel");
    fpsLabel = makeLabel("fpsLabel");
    fpsLabel->setText(QStringLiteral("FPS : 0.0"));
    buildNotice();
}

void MainWindow::buildDialogs()
{
    aboutDialog = new AboutDialog(this);
    refractionDialog = new AstroRefractionDialog(session.refraction, this);
    trackingDialog = new PoleTrackingDialog(this);
    favoriteDialog = new FavoriteDialog(this);
    translator = new QTranslator(this);
    pictureMaker = std::make_unique<PictureMaker>(session);
    captureThread = std::make_unique<CaptureThread>(session, *pictureMaker);
}

void MainWindow::connectSignals()
{
    connect(this, SIGNAL(changeLanguage()), this, SLOT(languageChanged()));
    connect(this, SIGNAL(resetUI()), aboutDialog, SLOT(uiReset()));
    connect(this, SIGNAL(resetUI()), refractionDialog, SLOT(uiReset()));
    connect(this, SIGNAL(resetUI()), trackingDialog, SLOT(uiReset()));
    connect(this, SIGNAL(resetUI()), this, SLOT(uiReset()));
    connect(this, SIGNAL(initAstroRefraction()), refractionDialog, SLOT(initValues()));
    connect(trackingDialog, SIGNAL(trackPole(double)), this, SLOT(poleTracking(double)));
}

void MainWindow::startTimers()
{
    frameTimer = makeTimer(this, 20);
    connect(frameTimer, SIGNAL(timeout()), this, SLOT(showImages()));
    frameTimer->start();
    fpsTimer = makeTimer(this, 500);
    connect(fpsTimer, SIGNAL(timeout()), this, SLOT(updateFPS()));
    connect(fpsTimer, &QTimer::timeout, this, [this] {
        noteSettings();
        showNotice();
    });
    fpsTimer->start();
    angleTimer = makeTimer(this, 100);
    connect(angleTimer, SIGNAL(timeout()), this, SLOT(increaseAngleTimeout()));
    angleTimer->start();
    effectTimer = makeTimer(this, 500);
    connect(effectTimer, SIGNAL(timeout()), this, SLOT(graphicsEffectTimeout()));
}

void MainWindow::loadStarCatalogue()
{
    loadStarCatalogues(QDate::currentDate());
}

void MainWindow::applyStyle()
{
    if (styleName == QLatin1String("Mono"))
        ui->actionMono_Style->setChecked(true);
    showStyle(styleNamed(styleName));
    showLamps(0);
}

/// Applies icons and glow; the wizard sets the lamps.
void MainWindow::showStyle(const Style &style)
{
    ui->label_precise_poleIcon->setPixmap(QPixmap(style.poleIcon));
    ui->label_precise_axisIcon->setPixmap(QPixmap(style.axisIcon));
    for (QGraphicsDropShadowEffect *const shadow : {sliderShadow, roughSliderShadow})
        shadow->setColor(style.glow);
}

void MainWindow::applyZoomAction()
{
    // All three factors are exact in binary.
    QAction *const action = zoomFactor == 0.5F    ? ui->action50
                            : zoomFactor == 0.75F ? ui->action75
                                                  : ui->action100;
    action->setChecked(true);
    scaleDirectionArrow();
}

void MainWindow::applyLanguageAction()
{
    findChild<QAction *>(languageOf(languageCode).action)->setChecked(true);
    emit changeLanguage();
}

void MainWindow::applyIdleState()
{
    for (QWidget *const overlay :
         {static_cast<QWidget *>(ui->label_templateImg), static_cast<QWidget *>(directionArrow),
          static_cast<QWidget *>(tipTabs)})
        overlay->hide();
    showConnected(false);
    for (QAction *const action :
         {ui->actionStretch, ui->actionDisplay_Template, ui->actionFavorite})
        action->setVisible(false);
    openSections(noSections);
    for (QPushButton *const head :
         {ui->pushButton_head_region, ui->pushButton_head_setting, ui->pushButton_head_confirm,
          ui->pushButton_head_rough, ui->pushButton_head_precise})
        head->setEnabled(false);
    // Not on the first widget in tab order, "Start Monitor": the space bar would press it.
    ui->scrollArea_showImg->setFocus();
}

void MainWindow::buildValidators()
{
    auto *const digits = new QRegExpValidator(QRegExp(QStringLiteral("[0-9]+$")), this);
    for (QLineEdit *const edit :
         {ui->lineEditExpose, ui->lineEditGain, ui->lineEditTraffic, ui->lineEditSpeed})
        edit->setValidator(digits);
}

void MainWindow::buildPlayer()
{
    player = new QMediaPlayer(this);
    auto *const playlist = new QMediaPlaylist(this);
    playlist->addMedia(QUrl(QStringLiteral("qrc:/audio/audio.mp3")));
    playlist->setPlaybackMode(QMediaPlaylist::CurrentItemInLoop);
    player->setPlaylist(playlist);
    player->setVolume(0);
    // A looping playlist would retry an unplayable item forever, so looping is switched off.
    const auto giveUp = [this, playlist] {
        qWarning("the sound cannot be played: %s", qPrintable(player->errorString()));
        playlist->setPlaybackMode(QMediaPlaylist::CurrentItemOnce);
        player->stop();
    };
    connect(player, QOverload<QMediaPlayer::Error>::of(&QMediaPlayer::error), this, giveUp);
}

void MainWindow::initialiseSdk()
{
    noteSettings();
    const bool ready = InitVELDIXResource() == 0;
    session.camera.sdkReady = ready;
    if (ready)
        qDebug("InitVELDIXSDK success");
    else
        qCritical("InitVELDIXResource: failed");
}
