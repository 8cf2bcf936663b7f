// SPDX-License-Identifier: MIT
// Does the window use the stars of today's local date?
//
// The clock is set for this process only: the toolkit reads the time with gettimeofday, and finds
// this executable's own version first.
#include "geometry/starcatalogue.h"
#include "resources/resources.h"
#include "tests/support/logrecorder.h"
#include "tests/support/sessionwindow.h"
#include "tests/window/windowtest.h"

#include <QDateTime>
#include <ctime>
#include <sys/time.h>

namespace
{
qint64 clockSeconds = 0; ///< since the epoch, UTC
} // namespace

extern "C" __attribute__((visibility("default"))) int gettimeofday(timeval *time, void *) noexcept
{
    time->tv_sec = time_t(clockSeconds);
    time->tv_usec = 0;
    return 0;
}

class CatalogueDateTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { removeSettings(); }
    void localDate_data();
    void localDate();
};

void CatalogueDateTest::initTestCase()
{
    initialiseResources();
    removeSettings();
    clockSeconds = 1'500'000'000;
    if (QDateTime::currentSecsSinceEpoch() != clockSeconds)
        QSKIP("the toolkit reads the time of day in another way");
}

void CatalogueDateTest::localDate_data()
{
    QTest::addColumn<QString>("utc");
    QTest::addColumn<QByteArray>("zone"); ///< in TZ's form: hours west of Greenwich
    QTest::addColumn<QDate>("today");
    QTest::addColumn<int>("epoch");
    QTest::newRow("at Greenwich") << "2018-11-22T12:00:00Z" << QByteArray("UTC0")
                                  << QDate(2018, 11, 22) << 2018;
    QTest::newRow("a day later") << "2018-11-23T12:00:00Z" << QByteArray("UTC0")
                                 << QDate(2018, 11, 23) << 2019;
    QTest::newRow("already tomorrow in the east")
        << "2018-11-22T23:30:00Z" << QByteArray("EAST-9") << QDate(2018, 11, 23) << 2019;
    QTest::newRow("still yesterday in the west")
        << "2018-11-23T00:30:00Z" << QByteArray("WEST8") << QDate(2018, 11, 22) << 2018;
    QTest::newRow("before the first")
        << "2012-01-01T12:00:00Z" << QByteArray("UTC0") << QDate(2012, 1, 1) << 2016;
    QTest::newRow("beyond the last")
        << "2040-01-01T12:00:00Z" << QByteArray("UTC0") << QDate(2040, 1, 1) << 2024;
}

void CatalogueDateTest::localDate()
{
    QFETCH(QString, utc);
    QFETCH(QByteArray, zone);
    QFETCH(QDate, today);
    QFETCH(int, epoch);
    clockSeconds = QDateTime::fromString(utc, Qt::ISODate).toSecsSinceEpoch();
    qputenv("TZ", zone);
    tzset();
    QCOMPARE(QDate::currentDate(), today);
    QCOMPARE(catalogueEpoch(today), epoch);
    northCatalogue = southCatalogue = StarCatalogue();
    const LogRecorder log;
    const SessionWindow window;
    QVERIFY(log.contains(QtDebugMsg, "Loading star data at " + QString::number(epoch) + "0523"));
    const struct {
        const StarCatalogue &inForce;
        const char *file;
    } hemispheres[] = {{northCatalogue, ":/starData/NStarPosData.ini"},
                       {southCatalogue, ":/starData/SStarPosData.ini"}};
    for (const auto &hemisphere : hemispheres) {
        const StarCatalogue expected = readStarCatalogue(hemisphere.file, epoch);
        QVERIFY(expected.angleBAP > 0.0);
        QCOMPARE(hemisphere.inForce.angleBAP, expected.angleBAP);
        QCOMPARE(hemisphere.inForce.angleABP, expected.angleABP);
        QCOMPARE(hemisphere.inForce.angleDBP, expected.angleDBP);
    }
}

QTEST_MAIN(CatalogueDateTest)
#include "tst_cataloguedate.moc"
