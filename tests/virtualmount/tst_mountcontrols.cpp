// SPDX-License-Identifier: MIT
// Do the bolts, the axis, the truth and Reset in the virtual mount's window work as labelled?
#include "app/stylesheet.h"
#include "resources/resources.h"
#include "tests/virtualmount/mountwindowtest.h"

#include <QDial>
#include <QDoubleSpinBox>
#include <QShortcut>
#include <QSlider>
#include <cmath>

using virtualsky::SkyState;

namespace
{
constexpr double coarse = 5.0 / 60.0;
constexpr double fine = 20.0 / 3600.0;
} // namespace

class MountControlsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void bolts_data();
    void bolts();
    void southernEastIsOnTheLeft();
    void aHeldButtonRepeats();
    void axisTurns_data();
    void axisTurns();
    void theAxisMovesAtAPersonsPace();
    void homeStopsAndGoesBack();
    void theDialLeadsTheAxis();
    void aHeldKeyTurnsTheAxisOnce();
    void trackingIsKeptInTheAngle();
    void theTruthIsHiddenUntilAskedFor();
    void theTruthIsHiddenAgain_data();
    void theTruthIsHiddenAgain();
    void reset();
};

void MountControlsTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, QStringLiteral(":/qss/default.qss"));
    QVERIFY(!qApp->styleSheet().isEmpty());
}

void MountControlsTest::bolts_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<double>("altitude");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<QString>("counts");
    QTest::newRow("up") << "altitudeUp" << Qt::Key_Up << false << coarse << 0.0 << "0.25 up, 0";
    QTest::newRow("down") << "altitudeDown" << Qt::Key_Down << false << -coarse << 0.0
                          << "0.25 down, 0";
    QTest::newRow("up finely") << "altitudeUpFine" << Qt::Key_Up << true << fine << 0.0
                               << "0.02 up, 0";
    QTest::newRow("down finely") << "altitudeDownFine" << Qt::Key_Down << true << -fine << 0.0
                                 << "0.02 down, 0";
    QTest::newRow("east") << "azimuthEast" << Qt::Key_Right << false << 0.0 << coarse
                          << "0, 0.25 east";
    QTest::newRow("west") << "azimuthWest" << Qt::Key_Left << false << 0.0 << -coarse
                          << "0, 0.25 west";
    QTest::newRow("east finely") << "azimuthEastFine" << Qt::Key_Right << true << 0.0 << fine
                                 << "0, 0.02 east";
    QTest::newRow("west finely") << "azimuthWestFine" << Qt::Key_Left << true << 0.0 << -fine
                                 << "0, 0.02 west";
}

void MountControlsTest::bolts()
{
    QFETCH(QString, button);
    QFETCH(Qt::Key, key);
    QFETCH(bool, shift);
    QFETCH(double, altitude);
    QFETCH(double, azimuth);
    QFETCH(QString, counts);
    for (const bool byKey : {false, true}) {
        const SkyFileFixture file;
        const ShownWindow shown(file.path());
        QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
        if (byKey)
            press(key, shift ? Qt::ShiftModifier : Qt::NoModifier);
        else
            clickOn(shown.window, button);
        const SkyState state = file.state();
        QVERIFY(near(state.boltAltitude, 0.6 + altitude, 1e-7));
        QVERIFY(near(state.boltAzimuth, -1.0 + azimuth, 1e-7));
        QCOMPARE(textOf(shown.window, "altitudeCount") + ", " +
                     textOf(shown.window, "azimuthCount"),
                 counts);
    }
}

/// Facing the southern pole, east is on the left: so are its buttons and its key.
void MountControlsTest::southernEastIsOnTheLeft()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = -34\n[mount]\nbolt_azimuth = 0\n");
    const ShownWindow shown(file.path());
    const auto xOf = [&](const char *name) {
        return named<QWidget>(shown.window, name).geometry().center().x();
    };
    QVERIFY(xOf("azimuthEast") < xOf("azimuthEastFine"));
    QVERIFY(xOf("azimuthEastFine") < xOf("azimuthWestFine"));
    QVERIFY(xOf("azimuthWestFine") < xOf("azimuthWest"));
    QCOMPARE(named<QAbstractButton>(shown.window, "azimuthEast").text(), QString("◀ East"));
    press(Qt::Key_Left);
    QVERIFY(near(file.state().boltAzimuth, coarse, 1e-7));
    press(Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(near(file.state().boltAzimuth, coarse - fine, 1e-7));
    clickOn(shown.window, "azimuthWest");
    QVERIFY(near(file.state().boltAzimuth, -fine, 1e-7));
    file.writeText("[site]\nlatitude = 34\n[mount]\nbolt_azimuth = 0\n");
    QTRY_VERIFY(xOf("azimuthEast") > xOf("azimuthWest"));
    press(Qt::Key_Left);
    QVERIFY(near(file.state().boltAzimuth, -coarse, 1e-7));
}

void MountControlsTest::aHeldButtonRepeats()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &button = named<QAbstractButton>(shown.window, "azimuthEastFine");
    QTest::mousePress(&button, Qt::LeftButton);
    QTRY_VERIFY(file.text().size() > 0 && file.state().boltAzimuth > -1.0 + 3.5 * fine);
    QTest::mouseRelease(&button, Qt::LeftButton);
    const QByteArray text = file.text();
    QTest::qWait(300);
    QCOMPARE(file.text(), text);
}

void MountControlsTest::axisTurns_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<Qt::Key>("key");
    const int turns[] = {-45, -30, -15, 15, 30, 45};
    for (int i = 0; i < 6; ++i)
        QTest::addRow("%d degrees", turns[i]) << turns[i] << Qt::Key(Qt::Key_1 + i);
}

void MountControlsTest::axisTurns()
{
    QFETCH(int, degrees);
    QFETCH(Qt::Key, key);
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 170 # so far\n");
    const ShownWindow shown(file.path());
    const auto expect = [&](double angle) {
        QTRY_VERIFY(near(file.state().raAngle, angle, 1e-6));
        QTest::qWait(150); // and no further
        QVERIFY(near(file.state().raAngle, angle, 1e-6));
        QCOMPARE(named<QDial>(shown.window, "dial").value(), qRound(angle));
    };
    clickOn(shown.window, QString("turn%1").arg(degrees));
    expect(std::remainder(170.0 + degrees, 360.0));
    press(key, Qt::ControlModifier);
    expect(std::remainder(170.0 + 2.0 * degrees, 360.0));
    QVERIFY(file.text().endsWith(" # so far\n"));
}

void MountControlsTest::theAxisMovesAtAPersonsPace()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    QElapsedTimer time;
    time.start();
    clickOn(shown.window, "turn45");
    QList<double> seen = {0.0};
    while (seen.last() < 45.0 && time.elapsed() < patience) {
        QTest::qWait(10);
        if (file.text().isEmpty())
            continue;
        const double angle = file.state().raAngle;
        if (angle != seen.last())
            seen.append(angle);
    }
    // 45 degrees at 20 degrees a second: 2.25 s, later on a busy machine and never sooner.
    QVERIFY2(time.elapsed() >= 2100, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(seen.last(), 45.0);
    QVERIFY2(seen.size() >= 9, qPrintable(QString::number(seen.size())));
    for (int i = 1; i < seen.size(); ++i)
        QVERIFY(seen[i] > seen[i - 1]);
}

void MountControlsTest::homeStopsAndGoesBack()
{
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 4\n");
    const ShownWindow shown(file.path());
    clickOn(shown.window, "turn45");
    QTRY_VERIFY(file.state().raAngle > 5.0);
    pressMnemonic(Qt::Key_H);
    QTRY_COMPARE(file.state().raAngle, 0.0);
    QTRY_COMPARE(textOf(shown.window, "angle"), QString("0.0°"));
    QTest::qWait(200);
    QCOMPARE(file.state().raAngle, 0.0);
}

void MountControlsTest::theDialLeadsTheAxis()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    auto &dial = named<QDial>(shown.window, "dial");
    press(Qt::Key_A, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), &dial);
    press(Qt::Key_PageUp); // fifteen degrees
    QCOMPARE(dial.value(), 15);
    QTRY_COMPARE(file.text().isEmpty() ? 0.0 : file.state().raAngle, 15.0);
    press(Qt::Key_Down);
    QTRY_COMPARE(file.state().raAngle, 14.0);
    QCOMPARE(dial.value(), 14);
    // With the mouse: a quarter of a turn anticlockwise of the top.
    QTest::mouseClick(&dial, Qt::LeftButton, Qt::NoModifier, QPoint(4, dial.height() / 2));
    const int goal = dial.value();
    QVERIFY2(std::abs(goal + 90) <= 4, qPrintable(QString::number(goal)));
    QTRY_COMPARE(file.state().raAngle, double(goal));
    QCOMPARE(dial.value(), goal);
}

void MountControlsTest::aHeldKeyTurnsTheAxisOnce()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    for (const QShortcut *const shortcut : shown.window.findChildren<QShortcut *>()) {
        const int key = shortcut->key()[0];
        const bool turnsTheAxis =
            key >= int(Qt::CTRL) + Qt::Key_1 && key <= int(Qt::CTRL) + Qt::Key_6;
        const bool turnsABolt =
            (key & ~int(Qt::SHIFT)) >= Qt::Key_Left && (key & ~int(Qt::SHIFT)) <= Qt::Key_Down;
        if (turnsTheAxis || turnsABolt)
            QCOMPARE(shortcut->autoRepeat(), turnsABolt);
    }
}

void MountControlsTest::trackingIsKeptInTheAngle()
{
    // An hour of tracking under a frozen sky, started elsewhere, is turned off and on here.
    const SkyFileFixture file;
    file.writeText("[time]\ndate = 2026-11-20T20:00:00Z\nrunning = false\n[mount]\nra_angle = 10\n"
                   "tracking = true\ntracking_since = 2026-11-20T19:00:00Z\n");
    const ShownWindow shown(file.path());
    QCOMPARE(textOf(shown.window, "angle"), QString("+25.0°"));
    pressMnemonic(Qt::Key_K);
    SkyState state = file.state();
    QVERIFY(!state.tracking && !state.trackingSince);
    QVERIFY(near(state.raAngle, 10.0 + 360.0 * 3600.0 / 86164.0989, 1e-4));
    QCOMPARE(textOf(shown.window, "angle"), QString("+25.0°"));
    clickOn(shown.window, "tracking");
    state = file.state();
    QVERIFY(state.tracking && !state.trackingSince);
    QCOMPARE(textOf(shown.window, "angle"), QString("+25.0°"));
}

void MountControlsTest::theTruthIsHiddenUntilAskedFor()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = 60\n[mount]\nbolt_altitude = 0.25\nbolt_azimuth = 0\n");
    const ShownWindow shown(file.path());
    const QRegularExpression figure("[0-9]");
    QVERIFY(!textOf(shown.window, "truth").contains(figure));
    press(Qt::Key_Up);
    QVERIFY(!textOf(shown.window, "truth").contains(figure));
    press(Qt::Key_Down);
    pressMnemonic(Qt::Key_T);
    QCOMPARE(textOf(shown.window, "truth"),
             QString("The RA axis misses the pole by 15′ 00″:\n15′ 00″ too high and 0′ 00″."));
    press(Qt::Key_Down); // and it follows the bolts
    QCOMPARE(textOf(shown.window, "truth"),
             QString("The RA axis misses the pole by 10′ 00″:\n10′ 00″ too high and 0′ 00″."));
    clickOn(shown.window, "showTruth");
    QVERIFY(!textOf(shown.window, "truth").contains(figure));
}

void MountControlsTest::theTruthIsHiddenAgain_data()
{
    QTest::addColumn<QString>("by");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("a new site") << "latitude" << true;
    QTest::newRow("a new site by an editor") << "editor" << true;
    QTest::newRow("reset") << "reset" << true;
    QTest::newRow("not by weather") << "refraction" << false;
    QTest::newRow("not by the axis") << "home" << false;
}

void MountControlsTest::theTruthIsHiddenAgain()
{
    QFETCH(QString, by);
    QFETCH(bool, hidden);
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 2\n");
    const ShownWindow shown(file.path());
    clickOn(shown.window, "showTruth");
    QVERIFY(textOf(shown.window, "truth").contains("58′ 13″"));
    if (by == "latitude")
        named<QDoubleSpinBox>(shown.window, by).setValue(41.0);
    else if (by == "editor")
        file.writeText("[site]\nlongitude = 3\n");
    else
        clickOn(shown.window, by);
    if (hidden) {
        QTRY_VERIFY(!textOf(shown.window, "truth").contains("′"));
        QCOMPARE(named<QAbstractButton>(shown.window, "showTruth").text(),
                 QString("Show me the tru&th"));
    } else {
        QTest::qWait(300);
        QVERIFY(textOf(shown.window, "truth").contains("58′ 13″"));
    }
}

void MountControlsTest::reset()
{
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = -30\n[weather]\nmoon = 1 # full\n[faults]\ncameras = 2\n");
    const SkyState before = file.state();
    const ShownWindow shown(file.path());
    press(Qt::Key_Up);
    clickOn(shown.window, "turn45");
    clickOn(shown.window, "passing");
    QTest::qWait(200);
    pressMnemonic(Qt::Key_R);
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(before));
    QVERIFY(file.text().contains(" # full\n"));
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
    QCOMPARE(textOf(shown.window, "angle"), QString("0.0°"));
    QVERIFY(named<QSlider>(shown.window, "clouds").isEnabled());
    QTest::qWait(300); // nothing keeps moving
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(before));
}

QTEST_MAIN(MountControlsTest)
#include "tst_mountcontrols.moc"
