// SPDX-License-Identifier: MIT
// By how much do the built-in star angles miss the pole, compared with an independent program?
#include "geometry/starcatalogue.h"
#include "resources/resources.h"
#include "virtualcamera/skykeys.h"
#include "virtualmount/starangles.h"

#include <QFile>
#include <QtTest>
#include <limits>
#include <utility>

using virtualsky::SkyState;

class StarAnglesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initialiseResources(); }
    void golden_data();
    void golden();
    void anglesOfTheDay_data();
    void anglesOfTheDay();
    void theMountDoesNotMatter();
    void noTriangle();
    void aStarInLineWithThePoleIsNoTriangle();
};

void StarAnglesTest::golden_data()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("utc");
    QTest::addColumn<int>("year");
    QTest::addColumn<double>("arcseconds");
    QFile file(QStringLiteral(PROJECT_SOURCE_DIR "/tests/virtualmount/golden/angles_error.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    int rows = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const QList<QByteArray> parts = line.split(',');
        const auto utc = virtualsky::parseDate(parts.at(1).toStdString());
        QVERIFY(parts.size() == 4 && utc);
        QTest::newRow(line.constData())
            << (parts[0] == "south") << *utc << parts[2].toInt() << parts[3].toDouble();
        ++rows;
    }
    QCOMPARE(rows, 14);
}

/// Half an arcsecond: the independent program observes from the Earth's centre.
void StarAnglesTest::golden()
{
    QFETCH(bool, south);
    QFETCH(double, utc);
    QFETCH(int, year);
    QFETCH(double, arcseconds);
    const QString name = south ? "S" : "N";
    const StarCatalogue angles = readStarCatalogue(":/starData/" + name + "StarPosData.ini", year);
    for (const double longitude : {0.0, 116.0, -170.0}) {
        SkyState state;
        state.latitude = south ? -34.0 : 40.0;
        state.longitude = longitude;
        const auto error = virtualmount::anglesError(angles, state, utc);
        QVERIFY(error);
        QVERIFY2(std::abs(*error - arcseconds) < 0.5, qPrintable(QString::number(*error)));
    }
}

void StarAnglesTest::anglesOfTheDay_data()
{
    QTest::addColumn<QDate>("today");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<int>("year");
    QTest::addColumn<double>("arcseconds");
    QTest::newRow("north") << QDate(2026, 11, 20) << 40.0 << 2024 << 69.88;
    QTest::newRow("south") << QDate(2026, 11, 20) << -34.0 << 2024 << 34.44;
    QTest::newRow("a clock of long ago") << QDate(2016, 5, 1) << 40.0 << 2016 << 229.79;
}

void StarAnglesTest::anglesOfTheDay()
{
    QFETCH(QDate, today);
    QFETCH(double, latitude);
    QFETCH(int, year);
    QFETCH(double, arcseconds);
    SkyState state;
    state.latitude = latitude;
    const double evening = *virtualsky::parseDate("2026-11-20T20:00:00Z");
    const auto error = virtualmount::builtInAnglesError(today, state, evening);
    QVERIFY(error);
    QCOMPARE(error->year, year);
    QVERIFY2(std::abs(error->arcseconds - arcseconds) < 0.5,
             qPrintable(QString::number(error->arcseconds)));
}

/// Bolts, refraction and the camera's direction have no effect.
void StarAnglesTest::theMountDoesNotMatter()
{
    const double evening = *virtualsky::parseDate("2026-11-20T20:00:00Z");
    const QDate today(2026, 11, 20);
    SkyState state;
    const auto before = virtualmount::builtInAnglesError(today, state, evening);
    state.boltAltitude = 3.0;
    state.roll = 90.0;
    state.raAngle = 45.0;
    state.refraction = true;
    state.axisX = 500.0;
    const auto after = virtualmount::builtInAnglesError(today, state, evening);
    QVERIFY(before && after);
    QCOMPARE(after->arcseconds, before->arcseconds);
}

void StarAnglesTest::noTriangle()
{
    StarCatalogue angles;
    QVERIFY(!virtualmount::anglesError(angles, SkyState(), 0.0));
    angles.angleBAP = 16.0;
    angles.angleABP = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(!virtualmount::anglesError(angles, SkyState(), 0.0));
    angles.angleABP = 0.0;
    QVERIFY(!virtualmount::anglesError(angles, SkyState(), 0.0));
    std::swap(angles.angleBAP, angles.angleABP);
    QVERIFY(!virtualmount::anglesError(angles, SkyState(), 0.0));
}

/// Whether the circles about the two stars touch or cross then is a matter of rounding.
void StarAnglesTest::aStarInLineWithThePoleIsNoTriangle()
{
    for (double degrees = 1.0; degrees < 180.0; degrees += 1.0) {
        StarCatalogue angles;
        angles.angleBAP = degrees;
        angles.angleABP = 0.0;
        QVERIFY2(!virtualmount::anglesError(angles, SkyState(), 0.0),
                 qPrintable(QString::number(degrees)));
        std::swap(angles.angleBAP, angles.angleABP);
        QVERIFY2(!virtualmount::anglesError(angles, SkyState(), 0.0),
                 qPrintable(QString::number(degrees)));
    }
}

QTEST_GUILESS_MAIN(StarAnglesTest)
#include "tst_starangles.moc"
