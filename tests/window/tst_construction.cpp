// SPDX-License-Identifier: MIT
// What is in effect in a new window, for each kind of settings file?
#include "tests/support/boxwatcher.h"
#include "tests/window/windowtest.h"

#include "geometry/starcatalogue.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/mainwindowprobe.h"
#include "tests/support/picturemakerprobe.h"
#include "tests/support/sessionwindow.h"

#include <QGraphicsDropShadowEffect>
#include <QMenu>
#include <QRadioButton>

class ConstructionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void init() { removeSettings(); }
    void cleanupTestCase() { removeSettings(); }
    void sharedValues();
    void picturesAndThread();
    void order();
    void zoom_data();
    void zoom();
    void languages_data();
    void languages();
    void regions_data();
    void regions();
    void styles_data();
    void styles();
    void sdkMissing();
    void poleDataFollowsRegion_data();
    void poleDataFollowsRegion();
    void templatePolesInOrder();
    void templatePoleIsMarked_data();
    void templatePoleIsMarked();
};

void ConstructionTest::sharedValues()
{
    Session session;
    session.camera.exposure = session.camera.gain = session.camera.speed =
        session.camera.usbTraffic = -1;
    session.camera.bits = session.camera.roiWidth = session.camera.roiHeight = 99;
    session.camera.binX = session.camera.binY = session.camera.roiX = session.camera.roiY = 99;
    session.alignmentPoints.savedAxisCenter = QPointF(7, 7);
    MainWindow window(session);
    QCOMPARE(session.camera.exposure, 20000.0);
    QCOMPARE(session.camera.gain, 1.0);
    QCOMPARE(session.camera.speed, 0.0);
    QCOMPARE(session.camera.usbTraffic, 30.0);
    QCOMPARE(session.camera.bits, 8U);
    QCOMPARE(session.camera.binX, 1U);
    QCOMPARE(session.camera.binY, 1U);
    QCOMPARE(session.camera.roiX, 0U);
    QCOMPARE(session.camera.roiY, 0U);
    QCOMPARE(session.camera.roiWidth, 1280U);
    QCOMPARE(session.camera.roiHeight, 960U);
    QCOMPARE(bool(session.camera.cameraConnected), false);
    const auto matches = [](const cv::Mat &mat, int width, int height, int channels) {
        return mat.cols == width && mat.rows == height && mat.channels() == channels &&
               mat.depth() == CV_8U;
    };
    const FrameMatrices &matrices =
        PictureMakerProbe(MainWindowProbe(window).pictureMaker()).matrices();
    QVERIFY(matches(matrices.colourFrame, 1280, 960, 3));
    QVERIFY(matches(matrices.enlargedGrey, 6400, 4800, 1));
    QVERIFY(matches(matrices.enlargedColour, 6400, 4800, 3));
    QVERIFY(matches(matrices.magnifierCrop, 200, 200, 3));
    QCOMPARE(float(session.refraction.latitude), 39.9F);
    QCOMPARE(float(session.refraction.longitude), 116.3F);
    QCOMPARE(float(session.refraction.P), 101.0F);
    QCOMPARE(float(session.refraction.T), 10.0F);
    QCOMPARE(bool(session.refraction.enabledCorrect), false);
    QCOMPARE(session.refraction.P_unit, QString("kPa"));
    QCOMPARE(QPointF(session.alignmentPoints.savedAxisCenter), QPointF(0, 0));
}

/// The images that the window draws on without a camera, and the thread that it owns.
void ConstructionTest::picturesAndThread()
{
    SessionWindow window;
    const MainWindowProbe probe(window);
    QCOMPARE(probe.blankImage().size(), QSize(1280, 960));
    QCOMPARE(probe.blankImage().format(), QImage::Format_ARGB32);
    QVERIFY(probe.displayImage().isNull()); // nothing has been shown yet
    QVERIFY(!probe.captureThread().parent());
    QVERIFY(!probe.captureThread().isRunning());
}

/// According to the log: stars before settings, then hemisphere, style, language and camera.
void ConstructionTest::order()
{
    writeIni(settingsFilePath(), {"[STYLE]", "style=Mono", "[LANGUAGE]", "lang=EN"});
    const LogRecorder log;
    const SessionWindow window;
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
    SessionWindow window;
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

/// An unknown code remains in effect until another language is chosen.
void ConstructionTest::languages()
{
    QFETCH(QString, action);
    QFETCH(QString, catalogue);
    const QString code = QTest::currentDataTag();
    writeIni(settingsFilePath(), {"[LANGUAGE]", "lang=" + code});
    const LogRecorder log;
    SessionWindow window;
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
    SessionWindow window;
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
    SessionWindow window;
    QCOMPARE(MainWindowProbe(window).styleName(), name);
    QCOMPARE(named<QAction>(window, "actionMono_Style").isChecked(), isMono);
    QCOMPARE(bool(window.ownSession.overlayFlags.monoStyle), isMono);
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

/// Without the camera maker's library the window is as usable as with it, but cannot connect.
void ConstructionTest::sdkMissing()
{
    const LogRecorder log;
    SessionWindow window;
    if (window.ownSession.camera.sdkReady)
        QSKIP("a camera library lies on the loader's path");
    QCOMPARE(log.texts(QtCriticalMsg).filter("InitVELDIX"),
             QStringList{"InitVELDIXResource: failed"});
    QVERIFY(!log.texts(QtDebugMsg).contains("InitVELDIXSDK success"));
    const BoxWatcher boxes(QMessageBox::Ok);
    named<QAction>(window, "actionConnect").trigger();
    QCOMPARE(boxes.boxes().size(), 0);
    QVERIFY(!window.ownSession.camera.cameraConnected);
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
    Session session;
    session.alignmentPoints.angleBAP = 0;
    session.alignmentPoints.angleABP = 0;
    const MainWindow window(session);
    const StarCatalogue &stars = region == "North" ? northCatalogue : southCatalogue;
    QVERIFY(stars.angleBAP > 0);
    QVERIFY(northCatalogue.angleBAP != southCatalogue.angleBAP);
    QCOMPARE(double(session.alignmentPoints.angleBAP), stars.angleBAP);
    QCOMPARE(double(session.alignmentPoints.angleABP), stars.angleABP);
    QVERIFY(stars.templatePoleX > 0);
    QVERIFY(stars.templatePoleY > 0);
}

/// The epoch is chosen before the poles are computed from it, the northern one first.
void ConstructionTest::templatePolesInOrder()
{
    const LogRecorder log;
    const SessionWindow window;
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

/// The label over the picture shows the mask with the pole's cross in it, and nothing else.
void ConstructionTest::templatePoleIsMarked()
{
    QFETCH(QString, region);
    writeIni(settingsFilePath(), {"[REGION]", "region=" + region});
    const SessionWindow window;
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
