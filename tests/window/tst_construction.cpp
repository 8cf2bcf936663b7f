// SPDX-License-Identifier: MIT
// In which state is the window right after it was made, for each kind of settings file?
#include "tests/window/windowtest.h"

#include "camera/camerastate.h"
#include "camera/frames.h"
#include "camera/sharedstate.h"
#include "dialogs/aboutdialog.h"
#include "dialogs/astrorefractiondialog.h"
#include "dialogs/favoritedialog.h"
#include "dialogs/magnifierwidget.h"
#include "dialogs/poletrackingdialog.h"
#include "geometry/starcatalogue.h"
#include "mainwindow/mainwindow.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"

#include <QActionGroup>
#include <QGraphicsDropShadowEffect>
#include <QGridLayout>
#include <QLineEdit>
#include <QMediaPlayer>
#include <QMediaPlaylist>
#include <QMenu>
#include <QRadioButton>
#include <QRegExpValidator>
#include <QScrollArea>
#include <QSlider>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <memory>

class ConstructionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void init() { removeSettings(); }
    void cleanupTestCase() { removeSettings(); }
    void sharedValues();
    void order();
    void zoom_data();
    void zoom();
    void languages_data();
    void languages();
    void regions_data();
    void regions();
    void styles_data();
    void styles();
    void idleVisibility();
    void actions_data();
    void actions();
    void sectionsAreShut_data();
    void sectionsAreShut();
    void wizardRestsInStepOne();
    void timers_data();
    void timers();
    void shadows_data();
    void shadows();
    void validators_data();
    void validators();
    void statusBar();
    void imageArea();
    void magnifier();
    void arrowFollowsZoom_data();
    void arrowFollowsZoom();
    void actionGroups_data();
    void actionGroups();
    void player();
    void dialogs();
    void sdkMissing();
    void poleDataFollowsRegion_data();
    void poleDataFollowsRegion();
    void templatePolesInOrder();
    void templatePoleIsMarked_data();
    void templatePoleIsMarked();
};

void ConstructionTest::sharedValues()
{
    cameraState.exposure = cameraState.gain = cameraState.speed = cameraState.usbTraffic = -1;
    cameraState.bits = cameraState.roiWidth = cameraState.roiHeight = 99;
    cameraState.binX = cameraState.binY = cameraState.roiX = cameraState.roiY = 99;
    alignmentPoints.savedAxisCenter = QPointF(7, 7);
    const MainWindow window;
    QCOMPARE(cameraState.exposure, 20000.0);
    QCOMPARE(cameraState.gain, 1.0);
    QCOMPARE(cameraState.speed, 0.0);
    QCOMPARE(cameraState.usbTraffic, 30.0);
    QCOMPARE(cameraState.bits, 8U);
    QCOMPARE(cameraState.binX, 1U);
    QCOMPARE(cameraState.binY, 1U);
    QCOMPARE(cameraState.roiX, 0U);
    QCOMPARE(cameraState.roiY, 0U);
    QCOMPARE(cameraState.roiWidth, 1280U);
    QCOMPARE(cameraState.roiHeight, 960U);
    QCOMPARE(bool(cameraState.cameraConnected), false);
    const auto matches = [](const cv::Mat &mat, int width, int height, int channels) {
        return mat.cols == width && mat.rows == height && mat.channels() == channels &&
               mat.depth() == CV_8U;
    };
    QVERIFY(matches(frameMatrices.colourFrame, 1280, 960, 3));
    QVERIFY(matches(frameMatrices.enlargedGrey, 6400, 4800, 1));
    QVERIFY(matches(frameMatrices.enlargedColour, 6400, 4800, 3));
    QVERIFY(matches(frameMatrices.magnifierCrop, 200, 200, 3));
    QCOMPARE(float(refractionSettings.latitude), 39.9F);
    QCOMPARE(float(refractionSettings.longitude), 116.3F);
    QCOMPARE(float(refractionSettings.P), 101.0F);
    QCOMPARE(float(refractionSettings.T), 10.0F);
    QCOMPARE(bool(refractionSettings.enabledCorrect), false);
    QCOMPARE(refractionSettings.P_unit, QString("kPa"));
    QCOMPARE(QPointF(alignmentPoints.savedAxisCenter), QPointF(0, 0));
}

/// Stars before settings, then hemisphere, style, language and camera, as the log tells them.
void ConstructionTest::order()
{
    writeIni(settingsFilePath(), {"[STYLE]", "style=Mono", "[LANGUAGE]", "lang=EN"});
    const LogRecorder log;
    const MainWindow window;
    static const QRegularExpression stage(
        "Loading star data|change region|mono style|current language|InitVELDIX");
    QStringList found;
    for (const LogLine &line : log.lines())
        if (const auto match = stage.match(line.text); match.hasMatch())
            found << match.captured();
    const QStringList expected{"Loading star data", "change region", "mono style",
                               "current language", "InitVELDIX"};
    QCOMPARE(found, expected);
}

void ConstructionTest::zoom_data()
{
    QTest::addColumn<IniLines>("file");
    QTest::addColumn<QString>("action");
    QTest::addColumn<float>("factor");
    QTest::addColumn<QPoint>("click");
    const auto lines = [](const char *text) { return IniLines{"[ZOOM]", text}; };
    QTest::newRow("no file") << IniLines{} << "action100" << 1.0F << QPoint(640, 480);
    QTest::newRow("1") << lines("factor=1") << "action100" << 1.0F << QPoint(640, 480);
    QTest::newRow("0.75") << lines("factor=0.75") << "action75" << 0.75F << QPoint(480, 360);
    QTest::newRow("0.5") << lines("factor=0.5") << "action50" << 0.5F << QPoint(320, 240);
    QTest::newRow("another") << lines("factor=0.6") << "action100" << 0.6F << QPoint(384, 288);
    QTest::newRow("truncated") << lines("factor=0.3333") << "action100" << 0.3333F
                               << QPoint(213, 159);
    QTest::newRow("no number") << lines("factor=wide") << "action100" << 0.0F << QPoint(0, 0);
    QTest::newRow("far too large")
        << lines("factor=1e30") << "action100" << 1e30F << QPoint(INT_MAX, INT_MAX);
}

void ConstructionTest::zoom()
{
    QFETCH(IniLines, file);
    QFETCH(QString, action);
    QFETCH(float, factor);
    QFETCH(QPoint, click);
    if (!file.isEmpty())
        writeIni(settingsFilePath(), file);
    MainWindow window;
    const MainWindowProbe probe(window);
    QCOMPARE(probe.clickViewPos(), click);
    QCOMPARE(probe.templateCenter(), QPointF(640, 480));
    QCOMPARE(probe.zoomFactor(), factor);
    for (const char *const each : {"action100", "action75", "action50"})
        QCOMPARE(named<QAction>(window, each).isChecked(), action == each);
}

void ConstructionTest::languages_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("catalogue");
    const struct {
        const char *code, *action, *catalogue;
    } rows[] = {
        {"EN", "actionEnglish", "en_us"},    {"ZH", "actionChinese", "zh_cn"},
        {"JA", "actionJapanese", "ja_jp"},   {"DE", "actionGerman", "de_de"},
        {"ES", "actionSpanish", "es_es"},    {"FR", "actionFrench", "fr_fr"},
        {"IT", "actionItalian", "it_it"},    {"RU", "actionRussian", "ru_ru"},
        {"PT", "actionPortuguese", "pt_pt"}, {"KO", "actionKorean", "ko_kr"},
        {"XX", "actionEnglish", "en_us"},    {"de", "actionEnglish", "en_us"},
        {"", "actionEnglish", "en_us"},
    };
    for (const auto &row : rows)
        QTest::newRow(row.code) << row.action
                                << QString(":/languages/lan_%1.qm").arg(row.catalogue);
}

/// An unknown code stays in force until another language is chosen.
void ConstructionTest::languages()
{
    QFETCH(QString, action);
    QFETCH(QString, catalogue);
    const QString code = QTest::currentDataTag();
    writeIni(settingsFilePath(), {"[LANGUAGE]", "lang=" + code});
    const LogRecorder log;
    MainWindow window;
    QCOMPARE(MainWindowProbe(window).languageCode(), code);
    const QList<QAction *> actions = named<QMenu>(window, "menuLanguage").actions();
    QCOMPARE(actions.size(), 10);
    for (const QAction *const each : actions)
        QCOMPARE(each->isChecked(), each->objectName() == action);
    QVERIFY(log.contains(QtDebugMsg, "current language \"" + code + '"'));
    QCOMPARE(MainWindowProbe(window).translator().filePath(), catalogue);
}

void ConstructionTest::regions_data()
{
    QTest::addColumn<IniLines>("file");
    QTest::addColumn<bool>("isNorth");
    QTest::newRow("no file") << IniLines{} << true;
    QTest::newRow("North") << IniLines{"[REGION]", "region=North"} << true;
    QTest::newRow("South") << IniLines{"[REGION]", "region=South"} << false;
    QTest::newRow("in small letters") << IniLines{"[REGION]", "region=north"} << false;
    QTest::newRow("another") << IniLines{"[REGION]", "region=Equator"} << false;
    QTest::newRow("empty") << IniLines{"[REGION]", "region="} << false;
}

void ConstructionTest::regions()
{
    QFETCH(IniLines, file);
    QFETCH(bool, isNorth);
    if (!file.isEmpty())
        writeIni(settingsFilePath(), file);
    const LogRecorder log;
    MainWindow window;
    const QString name = isNorth ? "North" : "South";
    QCOMPARE(named<QRadioButton>(window, "radioButton_north").isChecked(), isNorth);
    QCOMPARE(named<QRadioButton>(window, "radioButton_south").isChecked(), !isNorth);
    QCOMPARE(MainWindowProbe(window).regionName(), name);
    QCOMPARE(log.texts(QtDebugMsg).filter("change region to"),
             QStringList{"change region to  \"" + name + '"'});
    const QString tip = named<QLabel>(window, "label_setting_tipMsg").text();
    QCOMPARE(tip.contains("Polaris"), isNorth);
    QCOMPARE(tip.contains("σ Oct"), !isNorth);
    const QSize mask =
        QImage(isNorth ? ":/images/north_mask.png" : ":/images/south_mask.png").size();
    QCOMPARE(named<QLabel>(window, "label_templateImg").pixmap(Qt::ReturnByValue).size(), mask);
}

void ConstructionTest::styles_data()
{
    QTest::addColumn<bool>("isMono");
    QTest::newRow("Mono") << true;
    QTest::newRow("Color") << false;
    QTest::newRow("mono") << false;
    QTest::newRow("") << false;
}

void ConstructionTest::styles()
{
    QFETCH(bool, isMono);
    const QString name = QTest::currentDataTag();
    writeIni(settingsFilePath(), {"[STYLE]", "style=" + name});
    MainWindow window;
    QCOMPARE(MainWindowProbe(window).styleName(), name);
    QCOMPARE(named<QAction>(window, "actionMono_Style").isChecked(), isMono);
    QCOMPARE(bool(overlayFlags.monoStyle), isMono);
    QVERIFY(shows(named<QLabel>(window, "label_precise_poleIcon"),
                  isMono ? ":/images/pole.png" : ":/images/pole_color.png"));
    QVERIFY(shows(named<QLabel>(window, "label_precise_axisIcon"),
                  isMono ? ":/images/center.png" : ":/images/center_color.png"));
    for (const char *const lamp :
         {"label_starPos1_icon", "label_starPos2_icon", "label_starPos3_icon"})
        QVERIFY(shows(named<QLabel>(window, lamp),
                      isMono ? ":/images/lightoff_mono.png" : ":/images/lightoff_color.png"));
    const QColor glow = isMono ? QColor(248, 248, 255) : QColor(224, 134, 26);
    for (const auto *const shadow : window.findChildren<QGraphicsDropShadowEffect *>())
        QCOMPARE(shadow->color(), glow);
}

void ConstructionTest::idleVisibility()
{
    MainWindow window;
    window.show();
    for (const char *const name : {"label_templateImg", "directionArrow", "tabWidget_tipMsg"})
        QVERIFY2(!named<QWidget>(window, name).isVisible(), name);
    for (const char *const name : {"groupBox_monitor", "label_showImg", "pushButton_monitor",
                                   "pushButton_head_region", "pushButton_head_precise"})
        QVERIFY2(named<QWidget>(window, name).isVisible(), name);
    QVERIFY(window.findChild<MagnifierWidget *>()->isVisible());
    for (const auto *const dialog : window.findChildren<QDialog *>())
        QVERIFY2(!dialog->isVisible(), dialog->metaObject()->className());
    QCOMPARE(window.windowTitle(), QString("Quorvandel"));
}

void ConstructionTest::actions_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("isVisible");
    const struct {
        const char *name;
        bool isEnabled, isVisible;
    } rows[] = {
        {"actionSave_As", false, true},
        {"actionExit", true, true},
        {"actionConnect", true, true},
        {"actionDisplay_Template", false, false},
        {"actionMono_Style", true, true},
        {"actionStretch", false, false}, // what is hidden counts as disabled
        {"actionAstronomical_Refraction", false, true},
        {"actionManual_Trace", false, true},
        {"actionPlay_Audio", true, true},
        {"actionFavorite", false, false},
        {"actionQuorvandel_Manual", true, true},
        {"actionAbout", true, true},
        {"actionEnglish", true, true},
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << row.isEnabled << row.isVisible;
}

void ConstructionTest::actions()
{
    QFETCH(bool, isEnabled);
    QFETCH(bool, isVisible);
    const MainWindow window;
    const auto &action = named<QAction>(window, QTest::currentDataTag());
    QCOMPARE(action.isEnabled(), isEnabled);
    QCOMPARE(action.isVisible(), isVisible);
    QVERIFY(!named<QMenu>(window, "menuZoom").isEnabled());
    QVERIFY(named<QMenu>(window, "menuLanguage").isEnabled());
}

void ConstructionTest::sectionsAreShut_data()
{
    QTest::addColumn<QString>("section");
    for (const char *const section : {"region", "setting", "confirm", "rough", "precise"})
        QTest::newRow(section) << section;
}

void ConstructionTest::sectionsAreShut()
{
    QFETCH(QString, section);
    const MainWindow window;
    const auto &head = named<QPushButton>(window, "pushButton_head_" + section);
    QVERIFY(!head.isChecked());
    QVERIFY(!head.isEnabled());
    QVERIFY(hasIcon(head, ":/images/expand.png"));
    QVERIFY(!isOpen(named<QWidget>(window, "widget_" + section)));
}

void ConstructionTest::wizardRestsInStepOne()
{
    overlayFlags.showAxisMark = true;
    overlayFlags.monitorTracking = true;
    MainWindow window;
    QCOMPARE(window.step(), 1);
    const auto &pages = named<QTabWidget>(window, "tabWidget_tipMsg");
    QCOMPARE(pages.currentIndex(), 0);
    QCOMPARE(pages.count(), 13);
    QVERIFY(!isOpen(*pages.tabBar()));
    QCOMPARE(pages.parentWidget()->objectName(), QString("scrollArea_showImg"));
    QVERIFY(!overlayFlags.showAxisMark);
    QVERIFY(!overlayFlags.monitorTracking);
    QCOMPARE(MainWindowProbe(window).rotateValue(), 0);
}

void ConstructionTest::timers_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<int>("interval");
    QTest::addColumn<bool>("isActive");
    QTest::newRow("frame") << 0 << 20 << true;
    QTest::newRow("frame rate") << 1 << 500 << true;
    QTest::newRow("arc angle") << 2 << 100 << true;
    QTest::newRow("blinking") << 3 << 500 << false;
}

void ConstructionTest::timers()
{
    QFETCH(int, which);
    QFETCH(int, interval);
    QFETCH(bool, isActive);
    MainWindow window;
    const MainWindowProbe probe(window);
    const QTimer *const timers[] = {&probe.frameTimer(), &probe.fpsTimer(), &probe.angleTimer(),
                                    &probe.effectTimer()};
    const QTimer &timer = *timers[which];
    QCOMPARE(timer.interval(), interval);
    QCOMPARE(timer.isActive(), isActive);
    QVERIFY(!timer.isSingleShot());
    QCOMPARE(timer.parent(), &window);
}

void ConstructionTest::shadows_data()
{
    QTest::addColumn<QString>("slider");
    QTest::newRow("confirm") << "horizontalSlider_confirm_match";
    QTest::newRow("rough") << "horizontalSlider_rough_match";
}

void ConstructionTest::shadows()
{
    QFETCH(QString, slider);
    const MainWindow window;
    const auto *const shadow = qobject_cast<const QGraphicsDropShadowEffect *>(
        named<QSlider>(window, slider).graphicsEffect());
    QVERIFY(shadow);
    QCOMPARE(shadow->blurRadius(), 20.0);
    QCOMPARE(shadow->offset(), QPointF(0, 0));
    QCOMPARE(shadow->color(), QColor(224, 134, 26));
    QVERIFY(!shadow->isEnabled());
}

void ConstructionTest::validators_data()
{
    QTest::addColumn<QString>("name");
    for (const char *const name :
         {"lineEditExpose", "lineEditGain", "lineEditTraffic", "lineEditSpeed"})
        QTest::newRow(name) << name;
}

void ConstructionTest::validators()
{
    QFETCH(QString, name);
    MainWindow window;
    auto &edit = named<QLineEdit>(window, name);
    const auto *const validator = qobject_cast<const QRegExpValidator *>(edit.validator());
    QVERIFY(validator);
    QCOMPARE(validator->regExp().pattern(), QString("[0-9]+$"));
    QCOMPARE(validator->parent(), &window);
    QCOMPARE(validator, named<QLineEdit>(window, "lineEditExpose").validator());
    edit.clear();
    QTest::keyClicks(&edit, "1a-2. 3");
    QCOMPARE(edit.text(), QString("123"));
}

void ConstructionTest::statusBar()
{
    const MainWindow window;
    for (const char *const name : {"positionLabel", "fpsLabel"}) {
        const auto &label = named<QLabel>(window, name);
        QCOMPARE(label.minimumSize(), QSize(85, 18));
        QCOMPARE(label.maximumSize(), QSize(85, 18));
        QCOMPARE(label.frameStyle(), int(QFrame::NoFrame));
        QCOMPARE(label.parentWidget(), window.findChild<QStatusBar *>("statusBar"));
    }
    QCOMPARE(named<QLabel>(window, "fpsLabel").text(), QString("FPS : 0.0"));
    QCOMPARE(named<QLabel>(window, "positionLabel").text(), QString());
}

void ConstructionTest::imageArea()
{
    const MainWindow window;
    const auto &contents = named<QWidget>(window, "scrollAreaWidgetContents_showImg");
    const auto *const grid = qobject_cast<QGridLayout *>(contents.layout());
    QVERIFY(grid);
    QCOMPARE(grid->spacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->count(), 1);
    const auto &image = named<QLabel>(window, "label_showImg");
    QCOMPARE(grid->itemAt(0)->widget(), static_cast<const QWidget *>(&image));
    QCOMPARE(grid->itemAt(0)->alignment(), Qt::AlignLeft | Qt::AlignTop);
    const auto &shownTemplate = named<QLabel>(window, "label_templateImg");
    for (const QLabel *const label : {&image, &shownTemplate}) {
        QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    }
    const auto &arrow = named<QLabel>(window, "directionArrow");
    QCOMPARE(arrow.parentWidget()->objectName(), QString("scrollArea_showImg"));
    // Clicks must reach the picture below.
    QVERIFY(arrow.testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(shownTemplate.testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(!image.testAttribute(Qt::WA_TransparentForMouseEvents));
}

void ConstructionTest::magnifier()
{
    MainWindow window;
    window.show();
    auto *const magnifier = window.findChild<MagnifierWidget *>();
    QVERIFY(magnifier);
    QCOMPARE(magnifier->geometry(), QRect(2, 2, 152, 152));
    QCOMPARE(magnifier->parentWidget()->objectName(), QString("scrollArea_showImg"));
    magnifier->setSource(QPixmap(200, 200));
    magnifier->grab();
    QCOMPARE(magnifier->magnifiedRegion().size(), QSize(30, 30));
}

void ConstructionTest::arrowFollowsZoom_data()
{
    QTest::addColumn<double>("factor");
    QTest::newRow("1") << 1.0;
    QTest::newRow("0.75") << 0.75;
    QTest::newRow("0.5") << 0.5;
}

void ConstructionTest::arrowFollowsZoom()
{
    QFETCH(double, factor);
    writeIni(settingsFilePath(), {"[ZOOM]", "factor=" + QString::number(factor)});
    const MainWindow window;
    const QSize natural = QPixmap(":/images/direction.png").size();
    const QSize shown = named<QLabel>(window, "directionArrow").pixmap(Qt::ReturnByValue).size();
    QCOMPARE(shown, natural.scaled(int(natural.width() * factor), int(natural.height() * factor),
                                   Qt::KeepAspectRatio));
}

void ConstructionTest::actionGroups_data()
{
    QTest::addColumn<QString>("checked");
    QTest::newRow("menuZoom") << "action100";
    QTest::newRow("menuLanguage") << "actionEnglish";
}

void ConstructionTest::actionGroups()
{
    QFETCH(QString, checked);
    const MainWindow window;
    const auto &menu = named<QMenu>(window, QTest::currentDataTag());
    const auto *const group = menu.findChild<QActionGroup *>();
    QVERIFY(group);
    QVERIFY(group->isExclusive());
    QCOMPARE(group->actions(), menu.actions());
    QCOMPARE(group->checkedAction()->objectName(), checked);
}

void ConstructionTest::player()
{
    const MainWindow window;
    const auto *const player = window.findChild<QMediaPlayer *>();
    const auto *const playlist = window.findChild<QMediaPlaylist *>();
    QVERIFY(player);
    QVERIFY(playlist);
    QCOMPARE(player->parent(), static_cast<const QObject *>(&window));
    QCOMPARE(playlist->parent(), static_cast<const QObject *>(&window));
    QCOMPARE(player->volume(), 0);
    QCOMPARE(player->state(), QMediaPlayer::StoppedState);
    QCOMPARE(player->playlist(), const_cast<QMediaPlaylist *>(playlist));
    QCOMPARE(playlist->mediaCount(), 1);
    QCOMPARE(playlist->media(0).request().url(), QUrl("qrc:/audio/audio.mp3"));
    QCOMPARE(playlist->playbackMode(), QMediaPlaylist::CurrentItemInLoop);
}

void ConstructionTest::dialogs()
{
    const MainWindow window;
    const QList<QDialog *> dialogs{
        window.findChild<AboutDialog *>(), window.findChild<AstroRefractionDialog *>(),
        window.findChild<PoleTrackingDialog *>(), window.findChild<FavoriteDialog *>()};
    QCOMPARE(window.findChildren<QDialog *>().size(), dialogs.size());
    for (const QDialog *const dialog : dialogs) {
        QVERIFY(dialog);
        QCOMPARE(dialog->parent(), static_cast<const QObject *>(&window));
        QVERIFY(!dialog->isModal());
    }
}

/// Without the camera maker's library the window is as usable as with it, but can not connect.
void ConstructionTest::sdkMissing()
{
    const LogRecorder log;
    MainWindow window;
    if (cameraState.sdkReady)
        QSKIP("a camera library lies on the loader's path");
    QCOMPARE(log.texts(QtCriticalMsg).filter("InitVELDIX"),
             QStringList{"InitVELDIXResource: failed"});
    QVERIFY(!log.texts(QtDebugMsg).contains("InitVELDIXSDK success"));
    const BoxAnswerer boxes(QMessageBox::Ok);
    named<QAction>(window, "actionConnect").trigger();
    QCOMPARE(boxes.seen.count, 0);
    QVERIFY(!cameraState.cameraConnected);
    QCOMPARE(named<QAction>(window, "actionConnect").text(), QString("Connect"));
}

void ConstructionTest::poleDataFollowsRegion_data()
{
    QTest::addColumn<QString>("region");
    QTest::newRow("North") << "North";
    QTest::newRow("South") << "South";
}

void ConstructionTest::poleDataFollowsRegion()
{
    QFETCH(QString, region);
    writeIni(settingsFilePath(), {"[REGION]", "region=" + region});
    alignmentPoints.angleBAP = 0;
    alignmentPoints.angleABP = 0;
    const MainWindow window;
    const StarCatalogue &stars = region == "North" ? northCatalogue : southCatalogue;
    QVERIFY(stars.angleBAP > 0);
    QVERIFY(northCatalogue.angleBAP != southCatalogue.angleBAP);
    QCOMPARE(double(alignmentPoints.angleBAP), stars.angleBAP);
    QCOMPARE(double(alignmentPoints.angleABP), stars.angleABP);
    QVERIFY(stars.templatePoleX > 0);
    QVERIFY(stars.templatePoleY > 0);
}

/// The epoch is chosen before the poles are computed from it, the northern one first.
void ConstructionTest::templatePolesInOrder()
{
    const LogRecorder log;
    const MainWindow window;
    QStringList found;
    for (const QString &text : log.texts(QtDebugMsg))
        if (text.startsWith("Loading star data at ") || text.contains(" pole in template "))
            found << text.section(' ', 0, 3);
    QCOMPARE(found, (QStringList{"Loading star data at", "north pole in template",
                                 "south pole in template"}));
}

void ConstructionTest::templatePoleIsMarked_data()
{
    poleDataFollowsRegion_data();
}

/// What lies over the picture is the mask with the pole's cross in it, and nothing else.
void ConstructionTest::templatePoleIsMarked()
{
    QFETCH(QString, region);
    writeIni(settingsFilePath(), {"[REGION]", "region=" + region});
    const MainWindow window;
    const auto pixels = [](const QImage &image) {
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    const QImage mask = pixels(QImage(":/images/" + region.toLower() + "_mask.png"));
    const auto &label = named<QLabel>(window, "label_templateImg");
    const QImage shown = pixels(label.pixmap(Qt::ReturnByValue).toImage());
    QCOMPARE(shown.size(), mask.size());
    QRect changed;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x)
            if (shown.pixel(x, y) != mask.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
    const StarCatalogue &stars = region == "North" ? northCatalogue : southCatalogue;
    const QPoint pole = QPointF(stars.templatePoleX, stars.templatePoleY).toPoint();
    QVERIFY((changed.center() - pole).manhattanLength() <= 2);
    QVERIFY(changed.width() >= 10 && changed.width() <= 13);
    QVERIFY(changed.height() >= 10 && changed.height() <= 13);
}

QTEST_MAIN(ConstructionTest)
#include "tst_construction.moc"
