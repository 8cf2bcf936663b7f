// SPDX-License-Identifier: MIT
// Does monitor mode follow the real stars: lost and found again, behind clouds, with the axis
// turned, both in one column?
#include "app/stylesheet.h"
#include "core/settingsfile.h"
#include "resources/resources.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"
#include "tools/practicesky.h"
#include "tools/tour/person.h"

#include <QApplication>
#include <QDateTime>
#include <QDial>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <cmath>
#include <memory>

namespace
{
/// Largest distance of a followed star from its true position, frame pixels.
constexpr double starTolerance = 1.0;
/// The pole follows from two stars and the built-in angles.
constexpr double poleTolerance = 2.5;
/// A star is searched for within this distance from its search position, along x and y.
constexpr double searchHalf = 20.0;

double distance(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

bool isInWindow(QPointF found, QPointF search)
{
    return std::abs(found.x() - search.x()) <= searchHalf + 1 &&
           std::abs(found.y() - search.y()) <= searchHalf + 1;
}

double directionOf(QPointF way)
{
    return std::atan2(way.y(), way.x()) * 180.0 / 3.141592653589793;
}
} // namespace

/// One alignment per hemisphere is taken to its last step; every row restores the sky.
class MonitorSkyTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void initTestCase_data();
    void init();
    void starsAreFound();
    void lostAndFoundAgain();
    void cloudsComeAndGo();
    void axisIsTurned_data();
    void axisIsTurned();
    void bothInOneColumn();
    void cleanupTestCase();

private:
    void monitor(bool south);
    bool isFollowed() const;
    bool areStarsFollowed() const;
    void turnAxis(int degrees);
    int dialFor(int degrees) const;
    const MonitorPositions &positions() const { return window->ownSession.monitorPositions; }

    bool monitorsSouth = false;
    virtualsky::SkyState atStart;
    std::unique_ptr<Knobs> knobs;
    std::unique_ptr<SessionWindow> window;
};

void MonitorSkyTest::initTestCase_data()
{
    QTest::addColumn<bool>("south");
    QTest::newRow("north") << false;
    QTest::newRow("south") << true;
}

void MonitorSkyTest::initTestCase()
{
    // Beside the executable, like the settings file: runs of other builds have their own.
    qputenv("QUORVANDEL_SKY", (QCoreApplication::applicationDirPath() + "/sky.ini").toUtf8());
    initialiseResources();
    applyStyleSheet(*qApp, ":/qss/default.qss");
    QFile::remove(settingsFilePath());
}

/// Takes an alignment to its last step, where the marks are followed.
void MonitorSkyTest::monitor(bool south)
{
    if (window)
        window->close();
    window.reset(); // with its capture thread, before the sky changes
    virtualsky::SkyState sky;
    sky.latitude = south ? -34.0 : 40.0;
    sky.longitude = south ? 149.0 : 116.0;
    sky.date =
        double(QDateTime::fromString("2024-05-23T14:00:00Z", Qt::ISODate).toSecsSinceEpoch());
    sky.running = false;
    sky.boltAltitude = 0.5;
    sky.boltAzimuth = -0.4;
    hurry(sky);
    QFile::remove(settingsFilePath());
    knobs = std::make_unique<Knobs>(qEnvironmentVariable("QUORVANDEL_SKY").toStdString(), sky);
    window = std::make_unique<SessionWindow>();
    window->resize(1280, 800);
    window->show();
    Person::Options options;
    options.south = south;
    Person person(*window, window->ownSession, *knobs, options, 1);
    person.connectCamera();
    person.prepare();
    person.setExposure();
    person.confirmTemplate();
    person.findAxis();
    person.placePoleStar();
    person.startMonitor();
    atStart = knobs->edit();
    monitorsSouth = south;
}

void MonitorSkyTest::init()
{
    QFETCH_GLOBAL(bool, south);
    try {
        if (!window || monitorsSouth != south)
            monitor(south);
    } catch (const std::exception &problem) {
        QFAIL(problem.what());
    }
    knobs->edit() = atStart;
    knobs->write();
    window->findChild<QDial *>("dial_tracking")->setValue(0);
    QVERIFY(QTest::qWaitFor([this] { return isFollowed(); }, patience));
}

bool MonitorSkyTest::areStarsFollowed() const
{
    return distance(positions().starACurrent, knobs->starA()) < starTolerance &&
           distance(positions().starBCurrent, knobs->starB()) < starTolerance;
}

bool MonitorSkyTest::isFollowed() const
{
    return areStarsFollowed() && positions().poleValid &&
           distance(positions().poleCurrent, knobs->pole()) < poleTolerance;
}

void MonitorSkyTest::starsAreFound()
{
    QVERIFY(window->findChild<QLabel *>("label_refStarA_pos")->text() != QLatin1String("(0,0)"));
    QVERIFY(!window->findChild<QLabel *>("label_biggerImg")->pixmap(Qt::ReturnByValue).isNull());
    knobs->nudgeStarB({8, -7}); // within the windows
    QVERIFY(QTest::qWaitFor([this] { return isFollowed(); }, patience));
}

/// The bolts move the stars out of their windows and back.
void MonitorSkyTest::lostAndFoundAgain()
{
    const QPointF searchB = positions().starBSearch;
    knobs->nudgeStarB({55, 30});
    QVERIFY(distance(knobs->starB(), searchB) > 2 * searchHalf);
    QVERIFY(QTest::qWaitFor([this] { return !areStarsFollowed(); }, patience));
    for (int look = 0; look < 10; ++look) {
        QTest::qWait(20);
        QVERIFY(isInWindow(positions().starACurrent, positions().starASearch));
        QVERIFY(isInWindow(positions().starBCurrent, searchB));
    }
    QCOMPARE(positions().starBSearch.load(), searchB);
    knobs->edit() = atStart;
    knobs->write();
    QVERIFY(QTest::qWaitFor([this] { return isFollowed(); }, patience));
}

/// Behind a cloud only noise is found, within the windows; when the sky clears, all is well again.
void MonitorSkyTest::cloudsComeAndGo()
{
    knobs->edit().clouds = 1.0;
    knobs->write();
    QVERIFY(QTest::qWaitFor([this] { return !areStarsFollowed(); }, patience));
    for (int look = 0; look < 10; ++look) {
        QTest::qWait(20);
        QVERIFY(isInWindow(positions().starACurrent, positions().starASearch));
        QVERIFY(isInWindow(positions().starBCurrent, positions().starBSearch));
    }
    knobs->edit().clouds = 0.0;
    knobs->write();
    QVERIFY(QTest::qWaitFor([this] { return isFollowed(); }, patience));
}

/// The tracking dial's correct value after a turn of the axis: the picture's turn, clockwise.
int MonitorSkyTest::dialFor(int degrees) const
{
    Knobs turned = *knobs;
    turned.edit() = atStart;
    const double before = directionOf(turned.starB() - turned.axis());
    turned.edit().raAngle = atStart.raAngle + degrees;
    const double after = directionOf(turned.starB() - turned.axis());
    const int dial = int(std::lround(after - before));
    return degrees == 360 ? 360 : (dial % 360 + 360) % 360;
}

void MonitorSkyTest::turnAxis(int degrees)
{
    knobs->turnRaAxisTo(atStart.raAngle + degrees);
    window->findChild<QDial *>("dial_tracking")->setValue(dialFor(degrees));
}

void MonitorSkyTest::axisIsTurned_data()
{
    QTest::addColumn<int>("degrees");
    for (const int degrees : {0, 1, 90, 360})
        QTest::addRow("%d degrees", degrees) << degrees;
}

/// The tracking dial moves the search positions along.
void MonitorSkyTest::axisIsTurned()
{
    QFETCH(int, degrees);
    const QPointF before = knobs->starB();
    turnAxis(degrees);
    if (degrees == 90)
        QVERIFY(distance(knobs->starB(), before) > 2 * searchHalf);
    QVERIFY(QTest::qWaitFor([this] { return isFollowed(); }, patience));
}

/// The axis is turned until both stars are in one column of the picture: the pole is either right
/// or not shown, and comes back.
void MonitorSkyTest::bothInOneColumn()
{
    Knobs tried = *knobs;
    int best = 0;
    double least = 1e9;
    for (int degrees = 0; degrees < 360; ++degrees) {
        tried.edit().raAngle = atStart.raAngle + degrees;
        const double apart = std::abs(tried.starA().x() - tried.starB().x());
        if (apart < least) {
            least = apart;
            best = degrees;
        }
    }
    QVERIFY2(least < 2.0, QByteArray::number(least));
    turnAxis(best);
    QVERIFY(QTest::qWaitFor([this] { return areStarsFollowed(); }, patience));
    for (int look = 0; look < 20; ++look) {
        QTest::qWait(20);
        if (positions().poleValid)
            QVERIFY(distance(positions().poleCurrent, knobs->pole()) < 2 * poleTolerance);
    }
    turnAxis(best + 30);
    QVERIFY(QTest::qWaitFor([this] { return isFollowed(); }, patience));
}

void MonitorSkyTest::cleanupTestCase()
{
    window.reset();
    QFile::remove(settingsFilePath());
}

QTEST_MAIN(MonitorSkyTest)
#include "tst_monitorsky.moc"
