// SPDX-License-Identifier: MIT
// Are exercises spread evenly, is each of them feasible, and is an aligned mount recognised?
#include "tests/virtualmount/mounttest.h"
#include "virtualcamera/truth.h"
#include "virtualmount/exercise.h"

#include <array>
#include <cmath>

using virtualmount::beginExercise;
using virtualsky::SkyState;

namespace
{
constexpr double beginning = 1795204800.0; // 2026-11-20T20:00:00Z
constexpr int draws = 3000;

/// How far counts are from an even spread: 9 on average for ten parts, above 28 once in a thousand.
double chiSquared(const std::array<int, 10> &counts)
{
    const double expected = draws / 10.0;
    double sum = 0.0;
    for (const int count : counts)
        sum += (count - expected) * (count - expected) / expected;
    return sum;
}

std::size_t partOf(double value, double least, double most)
{
    return std::size_t(std::floor(10.0 * (value - least) / (most - least)));
}
} // namespace

class ExerciseTest : public QObject
{
    Q_OBJECT

private slots:
    void changesBoltsAndRollAlone();
    void isSpreadEvenly();
    void canBeDone_data();
    void canBeDone();
    void endsWhereNoneCanBeDone();
    void isSeededFromTheSystem();
    void alignedMounts_data();
    void alignedMounts();
};

void ExerciseTest::changesBoltsAndRollAlone()
{
    SkyState state = virtualsky::parse("[site]\nlatitude = -30\n[mount]\nra_angle = 7\n"
                                       "tracking = true\n[weather]\nclouds = 0.3\n");
    SkyState expected = state;
    std::mt19937 random(3);
    beginExercise(state, beginning, random);
    QVERIFY(state.boltAltitude != expected.boltAltitude);
    QVERIFY(state.boltAzimuth != expected.boltAzimuth);
    QVERIFY(state.roll != expected.roll);
    expected.boltAltitude = state.boltAltitude;
    expected.boltAzimuth = state.boltAzimuth;
    expected.roll = state.roll;
    QCOMPARE(virtualsky::format(state), virtualsky::format(expected));
}

/// With the stars well inside the picture at every draw, only those too near the pole are rejected:
/// too few to be noticed here.
void ExerciseTest::isSpreadEvenly()
{
    std::array<int, 10> altitudes{};
    std::array<int, 10> azimuths{};
    std::array<int, 10> rolls{};
    std::mt19937 random(1);
    SkyState state;
    state.latitude = 75.0; // where the azimuth bolt moves the axis little
    state.axisX = 0.0;
    state.axisY = 0.0;
    int high = 0;
    int west = 0;
    int both = 0;
    for (int i = 0; i < draws; ++i) {
        beginExercise(state, beginning, random);
        QVERIFY(std::abs(state.boltAltitude) <= 3.0 && std::abs(state.boltAzimuth) <= 3.0);
        QVERIFY(std::abs(state.roll) <= 180.0);
        ++azimuths.at(partOf(state.boltAzimuth, -3.0, 3.0000001));
        ++rolls.at(partOf(state.roll, -180.0, 180.0000001));
        // The middle of the altitudes is missing, since the axis would be too near the pole.
        ++altitudes.at(partOf(state.boltAltitude, -3.0, 3.0000001));
        high += state.boltAltitude > 0.0;
        west += state.boltAzimuth < 0.0;
        both += state.boltAltitude > 0.0 && state.boltAzimuth < 0.0;
    }
    QVERIFY2(chiSquared(azimuths) < 35.0, qPrintable(QString::number(chiSquared(azimuths))));
    QVERIFY2(chiSquared(rolls) < 35.0, qPrintable(QString::number(chiSquared(rolls))));
    for (const std::size_t part : {0U, 1U, 2U, 7U, 8U, 9U})
        QVERIFY2(altitudes.at(part) > 270 && altitudes.at(part) < 420,
                 qPrintable(QString::number(altitudes.at(part))));
    for (const int half : {high, west, 2 * both}) // four deviations of a fair coin
        QVERIFY2(std::abs(half - draws / 2) < 160, qPrintable(QString::number(half)));
}

void ExerciseTest::canBeDone_data()
{
    QTest::addColumn<double>("latitude");
    QTest::newRow("north") << 40.0;
    QTest::newRow("south") << -34.0;
    QTest::newRow("at the equator, where the azimuth bolt moves most") << 0.0;
    QTest::newRow("at the pole, where it moves nothing") << 90.0;
}

void ExerciseTest::canBeDone()
{
    QFETCH(double, latitude);
    // Among this seed's draws is one less than a pixel too close to the lower edge.
    std::mt19937 random(17);
    double least = 1e9;
    double most = 0.0;
    for (int i = 0; i < 300; ++i) {
        SkyState state;
        state.latitude = latitude;
        beginExercise(state, beginning, random);
        const virtualsky::Truth truth = virtualsky::truth(state, beginning);
        least = std::min(least, truth.poleError);
        most = std::max(most, truth.poleError);
        for (const auto &star : {truth.starA, truth.starB})
            QVERIFY(star && star->x >= 40 && star->x <= 1239 && star->y >= 40 && star->y <= 919);
    }
    QVERIFY2(least >= 1800.0 && least < 3600.0, qPrintable(QString::number(least)));
    QVERIFY2(most > 9000.0, qPrintable(QString::number(most)));
}

/// A camera that points past the pole.
void ExerciseTest::endsWhereNoneCanBeDone()
{
    SkyState state;
    state.axisX = 2000.0;
    state.axisY = 2000.0;
    std::mt19937 random(2);
    beginExercise(state, beginning, random);
    QVERIFY(std::abs(state.boltAltitude) <= 3.0 && state.boltAltitude != 0.6);
    QVERIFY(std::abs(state.boltAzimuth) <= 3.0 && state.boltAzimuth != -1.0);
}

void ExerciseTest::isSeededFromTheSystem()
{
    QVERIFY(virtualmount::systemRandom() != virtualmount::systemRandom());
    QVERIFY(virtualmount::systemRandom() != std::mt19937());
}

void ExerciseTest::alignedMounts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("aligned");
    QTest::newRow("as at first") << QByteArray("[site]\n") << false;
    QTest::newRow("exactly") << QByteArray("[mount]\nbolt_altitude = 0\nbolt_azimuth = 0\n")
                             << true;
    QTest::newRow("within ten minutes of arc")
        << QByteArray("[mount]\nbolt_altitude = -0.16\nbolt_azimuth = 0\n") << true;
    QTest::newRow("beyond") << QByteArray("[mount]\nbolt_altitude = -0.17\nbolt_azimuth = 0\n")
                            << false;
    QTest::newRow("the azimuth bolt moves less, far north")
        << QByteArray("[site]\nlatitude = 60\n[mount]\nbolt_altitude = 0\nbolt_azimuth = 0.32\n")
        << true;
    QTest::newRow("in the south")
        << QByteArray("[site]\nlatitude = -30\n[mount]\nbolt_altitude = 0\nbolt_azimuth = 0.32\n")
        << false;
}

void ExerciseTest::alignedMounts()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, aligned);
    QCOMPARE(virtualmount::isAligned(virtualsky::parse(text.toStdString())), aligned);
}

QTEST_GUILESS_MAIN(ExerciseTest)
#include "tst_exercise.moc"
