// SPDX-License-Identifier: MIT
// Does the tour show its end enlarged, keep it until a key press, and refuse unknown options?
#include "app/stylesheet.h"
#include "mainwindow/mainwindow.h"
#include "resources/resources.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"
#include "tools/practicesky.h"
#include "tools/tour/caption.h"
#include "tools/tour/ending.h"
#include "tools/tour/person.h"
#include "tools/tour/touroptions.h"
#include "widgets/magnifierwidget.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QTimer>

namespace
{
/// Ends the run if a wait never ends.
struct Impatience {
    Impatience()
    {
        QObject::connect(&timer, &QTimer::timeout, [] { qFatal("still waiting"); });
        timer.start(patience);
    }
    QTimer timer;
};
} // namespace

class TourEndingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theLastStepsAreSeenFromNear();
    void theCaptionFits_data();
    void theCaptionFits();
    void somebodyWatches_data();
    void somebodyWatches();
    void staysUntilAKey_data();
    void staysUntilAKey();
    void theKeyDoesNothingElse();
    void closingEndsIt();
    void aWindowThatIsGoneIsNotWaitedFor();
    void optionsAreRefused_data();
    void optionsAreRefused();
};

void TourEndingTest::initTestCase()
{
    qputenv("QUORVANDEL_SKY", (QCoreApplication::applicationDirPath() + "/sky.ini").toUtf8());
    initialiseResources();
    applyStyleSheet(*qApp, ":/qss/default.qss");
}

void TourEndingTest::theLastStepsAreSeenFromNear()
{
    virtualsky::SkyState sky = practiceSky(false);
    sky.boltAltitude = 0.8;
    sky.boltAzimuth = -0.9;
    hurry(sky);
    sky.noise = false;
    Knobs knobs(qEnvironmentVariable("QUORVANDEL_SKY").toStdString(), sky);
    SessionWindow window;
    window.resize(1000, 700);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, patience));
    Person::Options how;
    how.zoomPercent = 50;
    how.roughRest = {-11, 9};
    Person person(window, window.ownSession, knobs, how, 1);
    person.connectCamera();
    person.prepare();
    person.setExposure();
    person.confirmTemplate();
    person.findAxis();
    person.placePoleStar();
    const auto &picture = *window.findChild<QLabel *>("label_showImg");
    QCOMPARE(picture.pixmap(Qt::ReturnByValue).width(), 640);
    person.zoomIn();
    QCOMPARE(picture.pixmap(Qt::ReturnByValue).width(), 1280);
    person.startMonitor();
    person.magnifyMarks();
    // The way to go is visible: more than ten pixels, 50 in the magnifier.
    const double before = knobs.poleError() / 30.45;
    QVERIFY2(before > 10 && before < 20, qPrintable(QString::number(before)));
    person.fineAdjust();
    person.finish();
    QVERIFY2(knobs.poleError() < 75, qPrintable(QString::number(knobs.poleError())));
    // Both marks are still in the magnifier; it shows 15 pixels on every side.
    const auto &magnifier = *window.findChild<MagnifierWidget *>();
    const QPointF off = QPointF(magnifier.magnifiedCentre()) - knobs.axis();
    QVERIFY2(std::hypot(off.x(), off.y()) < 4, qPrintable(QString::number(off.manhattanLength())));
    person.disconnectCamera();
}

void TourEndingTest::theCaptionFits_data()
{
    QTest::addColumn<int>("width");
    for (const int width : {300, 600, 1200})
        QTest::addRow("%d pixels", width) << width;
}

void TourEndingTest::theCaptionFits()
{
    QFETCH(int, width);
    QWidget window;
    window.resize(1400, 600);
    QWidget part(&window);
    part.setGeometry(200, 0, width, 500);
    Caption caption(window, part);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, patience));
    const QString text = "Aligned: 63.2 arcminutes off before, 26 arcseconds now. Press a key to "
                         "end.";
    for (int i = 0; i < 2; ++i) {
        caption.say(text);
        const int wrapped = caption.height();
        QVERIFY2(part.geometry().contains(caption.geometry()), qPrintable(text));
        QVERIFY(caption.heightForWidth(caption.width()) <= wrapped || !caption.wordWrap());
        caption.say("Done");
        QVERIFY(caption.height() <= wrapped && caption.width() < 200);
    }
}

void TourEndingTest::somebodyWatches_data()
{
    QTest::addColumn<bool>("fast");
    QTest::addColumn<bool>("pictures");
    QTest::addColumn<QString>("platform");
    QTest::addColumn<bool>("watched");
    QTest::newRow("on a screen") << false << false << "xcb" << true;
    QTest::newRow("on another screen") << false << false << "wayland" << true;
    QTest::newRow("fast") << true << false << "xcb" << false;
    QTest::newRow("with pictures") << false << true << "xcb" << false;
    QTest::newRow("offscreen") << false << false << "offscreen" << false;
    QTest::newRow("minimal") << false << false << "minimal" << false;
}

void TourEndingTest::somebodyWatches()
{
    QFETCH(bool, fast);
    QFETCH(bool, pictures);
    QFETCH(QString, platform);
    QFETCH(bool, watched);
    QCOMPARE(isWatched(fast, pictures, platform), watched);
}

void TourEndingTest::staysUntilAKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("ends");
    QTest::newRow("space") << Qt::Key_Space << true;
    QTest::newRow("escape") << Qt::Key_Escape << true;
    QTest::newRow("a letter") << Qt::Key_A << true;
    QTest::newRow("an arrow") << Qt::Key_Left << true;
    QTest::newRow("shift alone") << Qt::Key_Shift << false;
    QTest::newRow("alt alone") << Qt::Key_Alt << false;
}

void TourEndingTest::staysUntilAKey()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, ends);
    QWidget window;
    QWidget other; // the mount's window takes keys too
    window.show();
    other.show();
    QElapsedTimer time;
    time.start();
    QTimer::singleShot(300, &other, [&] { QTest::keyClick(&other, key); });
    bool isLate = false;
    QTimer::singleShot(ends ? patience : 900, &window, [&] {
        isLate = true;
        QTest::keyClick(&window, Qt::Key_Return);
    });
    waitForKey(window);
    QVERIFY2(time.elapsed() >= 300, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(isLate, !ends);
    QVERIFY(window.isVisible());
}

void TourEndingTest::theKeyDoesNothingElse()
{
    QWidget window;
    QPushButton button(&window);
    QShortcut shortcut(Qt::Key_Space, &window);
    int done = 0;
    connect(&button, &QPushButton::clicked, &window, [&] { ++done; });
    connect(&shortcut, &QShortcut::activated, &window, [&] { ++done; });
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window, patience));
    button.setFocus();
    const auto press = [&] { QTest::keyClick(window.windowHandle(), Qt::Key_Space); };
    QTimer::singleShot(50, &window, press);
    const Impatience late;
    waitForKey(window);
    QCOMPARE(done, 0);
    press(); // and afterwards it does again
    QCOMPARE(done, 1);
}

void TourEndingTest::closingEndsIt()
{
    QWidget window;
    window.show();
    QTimer::singleShot(50, &window, &QWidget::close);
    const Impatience late;
    waitForKey(window);
    QVERIFY(!window.isVisible());
}

void TourEndingTest::aWindowThatIsGoneIsNotWaitedFor()
{
    QWidget window;
    QElapsedTimer time;
    time.start();
    waitForKey(window);
    QVERIFY(time.elapsed() < patience);
}

void TourEndingTest::optionsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *name, const QStringList &arguments, const char *fault) {
        QTest::newRow(name) << arguments << QString(fault);
    };
    const char *const zoom = "--zoom takes 100, 75 or 50";
    const char *const language = "--language takes EN, ZH, JA, RU, FR, DE, ES, PT, IT or KO";
    row("none", {}, "");
    row("all that go together",
        {"--south", "--fast", "--real-rate", "--zoom", "50", "--language", "JA", "--mono"}, "");
    row("a stray word", {"south"}, "no option: south");
    row("a stray word behind options", {"--fast", "--mono", "x y"}, "no option: x y");
    row("no zoom of the program", {"--zoom", "80"}, zoom);
    row("a zoom that is no number", {"--zoom", "big"}, zoom);
    row("an empty zoom", {"--zoom", ""}, zoom);
    row("no language of the program", {"--language", "SV"}, language);
    row("a language in small letters", {"--language", "de"}, language);
    row("a rate for nothing", {"--real-rate"}, "--real-rate goes with --fast");
}

void TourEndingTest::optionsAreRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, fault);
    QCommandLineParser options;
    addTourOptions(options);
    QVERIFY2(options.parse(QStringList{"tour"} + arguments), qPrintable(options.errorText()));
    QCOMPARE(tourOptionsFault(options), fault);
}

QTEST_MAIN(TourEndingTest)
#include "tst_tourending.moc"
