// SPDX-License-Identifier: MIT
// Does the virtual mount's window set exercises, say where the remaining error comes from, and
// restore what it found?
#include "app/stylesheet.h"
#include "resources/resources.h"
#include "tests/virtualmount/mountwindowtest.h"
#include "virtualmount/mounttexts.h"
#include "virtualmount/starangles.h"

#include <QDoubleSpinBox>
#include <QShortcut>
#include <QSlider>

using virtualsky::SkyState;

class MountExerciseTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void newExercise_data();
    void newExercise();
    void theAngleLineCanBeLeftOut();
    void everyExerciseIsAnother();
    void aHeldKeySetsOne();
    void aFaultyFileIsKept();
    void theAgeOfTheStarAngles_data();
    void theAgeOfTheStarAngles();
    void anAlignedStartIsTold_data();
    void anAlignedStartIsTold();
    void anotherStartIsTold();
    void resetGoesBackToTheFile();
    void resetKeepsWhatAnEditorChanged();
};

void MountExerciseTest::initTestCase()
{
    initialiseResources();
    applyStyleSheet(*qApp, QStringLiteral(":/qss/default.qss"));
    QVERIFY(!qApp->styleSheet().isEmpty());
}

void MountExerciseTest::newExercise_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"mouse", "mnemonic", "shortcut"})
        QTest::newRow(way) << way;
}

void MountExerciseTest::newExercise()
{
    QFETCH(QString, way);
    const SkyFileFixture file;
    file.writeText("[mount]\nra_angle = 2 # turned\n[site]\nlatitude = 52\n");
    const ShownWindow shown(file.path());
    press(Qt::Key_Up);
    clickOn(shown.window, "showTruth");
    QVERIFY(!textOf(shown.window, "angles").isEmpty());
    if (way == "mouse")
        clickOn(shown.window, "newExercise");
    else if (way == "mnemonic")
        pressMnemonic(Qt::Key_N);
    else
        press(Qt::Key_N, Qt::ControlModifier);
    const SkyState state = file.state();
    QVERIFY(std::abs(state.boltAltitude) <= 3.0 && std::abs(state.boltAzimuth) <= 3.0);
    QVERIFY(!near(state.boltAltitude, 0.6 + 5.0 / 60.0, 1e-6));
    QVERIFY(!near(state.boltAzimuth, -1.0, 1e-6));
    QVERIFY(state.roll != 0.0);
    QVERIFY(file.text().startsWith("[mount]\nra_angle = 2 # turned\n"));
    QCOMPARE(state.latitude, 52.0);
    // Nothing reveals where it starts.
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
    QCOMPARE(textOf(shown.window, "azimuthCount"), QString("0"));
    QCOMPARE(textOf(shown.window, "truth"), QString("What is left of the error is hidden."));
    QCOMPARE(textOf(shown.window, "angles"), QString());
    press(Qt::Key_Right); // the keys still move the bolts
    QCOMPARE(textOf(shown.window, "azimuthCount"), QString("0.25 east"));
}

void MountExerciseTest::theAngleLineCanBeLeftOut()
{
    const SkyFileFixture file;
    ShownWindow shown(file.path());
    shown.window.leaveOutAngles();
    clickOn(shown.window, "showTruth");
    QVERIFY(textOf(shown.window, "truth").contains("misses the pole"));
    QCOMPARE(textOf(shown.window, "angles"), QString());
}

void MountExerciseTest::everyExerciseIsAnother()
{
    QStringList begun;
    for (int window = 0; window < 2; ++window) {
        const SkyFileFixture file;
        const ShownWindow shown(file.path());
        for (int i = 0; i < 2; ++i) {
            clickOn(shown.window, "newExercise");
            begun << QString::number(file.state().boltAltitude, 'f', 7);
        }
    }
    QCOMPARE(begun.size(), 4);
    begun.removeDuplicates();
    QCOMPARE(begun.size(), 4);
}

void MountExerciseTest::aHeldKeySetsOne()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    int found = 0;
    for (const QShortcut *const shortcut : shown.window.findChildren<QShortcut *>())
        if (shortcut->key() == QKeySequence(int(Qt::CTRL) + Qt::Key_N)) {
            ++found;
            QVERIFY(!shortcut->autoRepeat());
        }
    QCOMPARE(found, 1);
}

void MountExerciseTest::aFaultyFileIsKept()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    clickOn(shown.window, "showTruth");
    file.writeText("broken\n");
    clickOn(shown.window, "newExercise");
    QCOMPARE(file.text(), QByteArray("broken\n"));
    QVERIFY(textOf(shown.window, "truth").contains("58′ 13″"));
}

void MountExerciseTest::theAgeOfTheStarAngles_data()
{
    QTest::addColumn<QByteArray>("date");
    QTest::addColumn<double>("latitude");
    QTest::newRow("north") << QByteArray("2026-11-20T20:00:00Z") << 40.0;
    QTest::newRow("south") << QByteArray("2026-11-20T20:00:00Z") << -34.0;
    QTest::newRow("later") << QByteArray("2045-07-01T12:00:00Z") << 40.0;
}

void MountExerciseTest::theAgeOfTheStarAngles()
{
    QFETCH(QByteArray, date);
    QFETCH(double, latitude);
    const SkyFileFixture file;
    file.writeText("[site]\nlatitude = " + QByteArray::number(latitude) +
                   "\n[time]\nrunning = false\ndate = " + date + "\n");
    const ShownWindow shown(file.path());
    QCOMPARE(textOf(shown.window, "angles"), QString());
    clickOn(shown.window, "showTruth");
    const auto expected =
        virtualmount::builtInAnglesError(QDate::currentDate(), file.state(), *file.state().date);
    QVERIFY(expected && expected->arcseconds > 30.0);
    QCOMPARE(textOf(shown.window, "angles"),
             QString("The age of the star angles (%1) alone makes %2.")
                 .arg(expected->year)
                 .arg(virtualmount::arcText(expected->arcseconds)));
    clickOn(shown.window, "showTruth");
    QCOMPARE(textOf(shown.window, "angles"), QString());
}

void MountExerciseTest::anAlignedStartIsTold_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"bolt", "exercise", "editor"})
        QTest::newRow(way) << way;
}

void MountExerciseTest::anAlignedStartIsTold()
{
    QFETCH(QString, way);
    const SkyFileFixture file;
    file.writeText("[mount]\nbolt_altitude = 0.01\nbolt_azimuth = -0.01\n");
    const ShownWindow shown(file.path());
    QVERIFY(textOf(shown.window, "truth").startsWith("The mount is already aligned."));
    clickOn(shown.window, "turn15");
    QTRY_COMPARE(textOf(shown.window, "angle"), QString("+15.0°"));
    QVERIFY(textOf(shown.window, "truth").startsWith("The mount is already aligned."));
    if (way == "bolt")
        press(Qt::Key_Up);
    else if (way == "exercise")
        clickOn(shown.window, "newExercise");
    else
        file.writeText("[mount]\nbolt_altitude = 2\n");
    QTRY_COMPARE(textOf(shown.window, "truth"), QString("What is left of the error is hidden."));
}

/// No message appears when the pole is approached by hand.
void MountExerciseTest::anotherStartIsTold()
{
    const SkyFileFixture file;
    file.writeText("[mount]\nbolt_altitude = 0.2\nbolt_azimuth = 0\n");
    const ShownWindow shown(file.path());
    const QString hidden = "What is left of the error is hidden.";
    QCOMPARE(textOf(shown.window, "truth"), hidden);
    press(Qt::Key_Down);
    QCOMPARE(textOf(shown.window, "truth"), hidden);
    press(Qt::Key_Down);
    QCOMPARE(textOf(shown.window, "truth"), hidden);
}

void MountExerciseTest::resetGoesBackToTheFile()
{
    const SkyFileFixture file;
    const QByteArray mine = "[site]\nlatitude = -30 # mine\n[mount]\nbolt_altitude = 2\n"
                            "[weather]\nmoon = 0.5\n[faults]\ncameras = 2\n";
    file.writeText(mine);
    const SkyState before = file.state();
    const ShownWindow shown(file.path());
    clickOn(shown.window, "newExercise");
    clickOn(shown.window, "refraction");
    named<QDoubleSpinBox>(shown.window, "latitude").setValue(41.0);
    named<QSlider>(shown.window, "moon").setValue(80);
    QVERIFY(file.state().latitude == -41.0 && file.state().moon == 0.8);
    clickOn(shown.window, "reset");
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(before));
    QVERIFY(file.text().startsWith("[site]\nlatitude = -30  # mine\n"));
    QCOMPARE(textOf(shown.window, "altitudeCount"), QString("0"));
}

void MountExerciseTest::resetKeepsWhatAnEditorChanged()
{
    const SkyFileFixture file;
    const ShownWindow shown(file.path());
    press(Qt::Key_Up);
    file.writeText(file.text().replace("moon = 0\n", "moon = 0.75\n"));
    QTRY_COMPARE(named<QSlider>(shown.window, "moon").value(), 75);
    clickOn(shown.window, "reset");
    SkyState expected;
    expected.moon = 0.75;
    QCOMPARE(virtualsky::format(file.state()), virtualsky::format(expected));
}

QTEST_MAIN(MountExerciseTest)
#include "tst_mountexercise.moc"
