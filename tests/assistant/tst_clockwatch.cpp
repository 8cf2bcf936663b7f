// SPDX-License-Identifier: MIT
// Is a clock that is set noticed, and one that only drifts not?
#include "assistant/clocks.h"

#include <QtTest>
#include <cmath>
#include <ctime>
#include <sys/timex.h>

using namespace assistant;

class ClockWatchTest : public QObject
{
    Q_OBJECT

private slots:
    void steps_data();
    void steps();
    void driftIsNoStep();
    void systemClocksRun();
    void aSuspendIsNoStep();
    void kernelsWord_data();
    void kernelsWord();
    void behind_data();
    void behind();
    void newestDateOfFiles();
    void certainPastHasPassed();
    void hardwareContradicts_data();
    void hardwareContradicts();
    void hardwareConfirms_data();
    void hardwareConfirms();
    void systemClocksAskTheHardware_data();
    void systemClocksAskTheHardware();
    void hardwareIsRead();
};

void ClockWatchTest::steps_data()
{
    QTest::addColumn<double>("by");
    QTest::addColumn<double>("reported");
    QTest::newRow("none") << 0.0 << 0.0;
    QTest::newRow("one second") << 1.0 << 0.0;
    QTest::newRow("three seconds back") << -3.0 << -3.0;
    QTest::newRow("a day") << 86400.0 << 86400.0;
}

void ClockWatchTest::steps()
{
    QFETCH(double, by);
    QFETCH(double, reported);
    ClockWatch watch;
    QCOMPARE(watch.step(1000.0, 5.0), 0.0);
    QCOMPARE(watch.step(1001.0, 6.0), 0.0);
    QCOMPARE(watch.step(1002.0 + by, 7.0), reported);
    QCOMPARE(watch.step(1003.0 + by, 8.0), 0.0); // reported once
}

/// Slewing by 500 parts in a million, as long as eight hours.
void ClockWatchTest::driftIsNoStep()
{
    ClockWatch watch;
    for (double steady = 0.0; steady < 8.0 * 3600.0; steady += 10.0)
        QCOMPARE(watch.step(1e9 + steady * 1.0005, steady), 0.0);
}

void ClockWatchTest::systemClocksRun()
{
    const Clocks clocks = systemClocks();
    QVERIFY(std::abs(clocks.utc() - double(std::time(nullptr))) < 5.0);
    const double before = clocks.steady();
    QTest::qSleep(20);
    const double passed = clocks.steady() - before;
    QVERIFY(passed >= 0.02 && passed < 5.0);
    QCOMPARE(clocks.synchronised(), isClockSynchronised());
}

/// The steady clock counts the seconds since the start, those of a suspend too.
void ClockWatchTest::aSuspendIsNoStep()
{
    timespec sinceStart = {};
    QCOMPARE(clock_gettime(CLOCK_BOOTTIME, &sinceStart), 0);
    const double seconds = double(sinceStart.tv_sec) + 1e-9 * double(sinceStart.tv_nsec);
    QVERIFY(std::abs(systemClocks().steady() - seconds) < 1.0);
}

void ClockWatchTest::kernelsWord_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("synchronised");
    QTest::newRow("right") << TIME_OK << true;
    QTest::newRow("a leap second is due") << TIME_INS << true;
    QTest::newRow("a leap second was left out") << TIME_WAIT << true;
    QTest::newRow("not synchronised") << TIME_ERROR << false;
    QTest::newRow("the call fails") << -1 << true;
}

void ClockWatchTest::kernelsWord()
{
    QFETCH(int, state);
    QTEST(saysSynchronised(state), "synchronised");
}

void ClockWatchTest::behind_data()
{
    QTest::addColumn<double>("now");
    QTest::addColumn<double>("past");
    QTest::addColumn<bool>("expected");
    constexpr double past = 1795204800.0;
    QTest::newRow("no past is known") << 0.0 << 0.0 << false;
    QTest::newRow("later") << past + 1.0 << past << false;
    QTest::newRow("a file in local time") << past - 3599.0 << past << false;
    QTest::newRow("a day before") << past - 86400.0 << past << true;
    QTest::newRow("a clock that began again") << 100.0 << past << true;
}

void ClockWatchTest::behind()
{
    QFETCH(double, now);
    QFETCH(double, past);
    QTEST(isBehind(now, past), "expected");
}

void ClockWatchTest::newestDateOfFiles()
{
    QCOMPARE(newestDate({}), 0.0);
    QCOMPARE(newestDate({"/nonexistent/file"}), 0.0);
    QTemporaryFile older, newer;
    const QDateTime date = QDateTime::fromSecsSinceEpoch(1700000000);
    for (QTemporaryFile *const file : {&older, &newer}) {
        QVERIFY(file->open());
        QVERIFY(file->setFileTime(date.addDays(file == &newer), QFile::FileModificationTime));
    }
    const std::string first = older.fileName().toStdString();
    const std::string second = newer.fileName().toStdString();
    QCOMPARE(newestDate({second, "/nonexistent/file", first}), 1700086400.0);
}

void ClockWatchTest::certainPastHasPassed()
{
    const Clocks clocks = systemClocks();
    const QFileInfo program(QCoreApplication::applicationFilePath());
    QVERIFY(clocks.certainPast >= double(program.lastModified().toSecsSinceEpoch()));
    QVERIFY(!isBehind(clocks.utc(), clocks.certainPast));
}

void ClockWatchTest::hardwareContradicts_data()
{
    QTest::addColumn<double>("hardware"); // seconds after the computer's clock
    QTest::addColumn<double>("past");     // likewise; 0: none
    QTest::addColumn<bool>("expected");
    constexpr double hour = 3600.0, day = 86400.0, year = 365.0 * day;
    QTest::newRow("the same") << 0.0 << -30.0 * day << false;
    QTest::newRow("minutes of drift") << 300.0 << -30.0 * day << false;
    QTest::newRow("local time, farthest east") << 14.0 * hour << -30.0 * day << false;
    QTest::newRow("local time, farthest west") << -12.0 * hour << -30.0 * day << false;
    QTest::newRow("the computer's clock is a day ahead") << -day << -30.0 * day << true;
    QTest::newRow("the computer's clock is a day behind") << day << -30.0 * day << true;
    QTest::newRow("a day ahead, a program of today") << -day << -day << true;
    QTest::newRow("a day ahead, settings of today") << -day << -60.0 << true;
    QTest::newRow("without battery since 2010") << -16.0 * year << -30.0 * day << false;
    QTest::newRow("since 2010, no past is known") << -16.0 * year << 0.0 << true;
}

void ClockWatchTest::hardwareContradicts()
{
    QFETCH(double, hardware);
    QFETCH(double, past);
    constexpr double now = 1795204800.0;
    QTEST(contradicts(now, now + hardware, past == 0.0 ? 0.0 : now + past), "expected");
    QVERIFY(!contradicts(now, std::nullopt, now - 1.0));
    QVERIFY(!contradicts(now, 100.0, 0.0)); // since the power came, 1970
}

void ClockWatchTest::hardwareConfirms_data()
{
    QTest::addColumn<double>("hardware"); // seconds after the computer's clock
    QTest::addColumn<double>("built");    // likewise; 0: not known
    QTest::addColumn<double>("zone");
    QTest::addColumn<bool>("expected");
    constexpr double hour = 3600.0, day = 86400.0, year = 365.0 * day, old = -30.0 * day;
    QTest::newRow("the same") << 0.0 << old << 0.0 << true;
    QTest::newRow("minutes of drift") << -600.0 << old << 9.0 * hour << true;
    QTest::newRow("local time, east") << 9.0 * hour << old << 9.0 * hour << true;
    QTest::newRow("local time, west") << -5.0 * hour << old << -5.0 * hour << true;
    QTest::newRow("hours ahead of the zone") << 14.0 * hour << old << 9.0 * hour << false;
    QTest::newRow("a day ahead") << day << old << 0.0 << false;
    QTest::newRow("a day behind") << -day << old << 0.0 << false;
    QTest::newRow("a program built by a clock a day ahead") << 0.0 << day << 0.0 << true;
    QTest::newRow("both began again") << 0.0 << year << 0.0 << false;
    QTest::newRow("the program's date is not known") << 0.0 << 0.0 << 0.0 << true;
}

void ClockWatchTest::hardwareConfirms()
{
    QFETCH(double, hardware);
    QFETCH(double, built);
    QFETCH(double, zone);
    constexpr double now = 1795204800.0;
    QTEST(confirms(now, now + hardware, built == 0.0 ? 0.0 : now + built, zone), "expected");
    QVERIFY(!confirms(now, std::nullopt, now - 1.0, zone));
    QVERIFY(!confirms(100.0, 100.0, 0.0, zone)); // since the power came, 1970
}

void ClockWatchTest::systemClocksAskTheHardware_data()
{
    QTest::addColumn<qint64>("hardware"); // seconds after the computer's clock
    QTest::addColumn<bool>("kernel");
    QTest::addColumn<bool>("synchronised");
    QTest::addColumn<bool>("confirmed");
    constexpr qint64 day = 86400;
    QTest::newRow("all agree") << qint64(0) << true << true << true;
    QTest::newRow("two days apart") << 2 * day << true << false << false;
    QTest::newRow("the kernel has not synchronised it") << qint64(0) << false << false << true;
}

void ClockWatchTest::systemClocksAskTheHardware()
{
    QFETCH(qint64, hardware);
    QFETCH(bool, kernel);
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(QByteArray::number(qint64(std::time(nullptr)) + hardware));
    file.flush();
    const Clocks clocks =
        systemClocks({file.fileName().toStdString(), [kernel] { return kernel; }});
    QTEST(clocks.synchronised(), "synchronised");
    QTEST(clocks.confirmed(), "confirmed");
}

void ClockWatchTest::hardwareIsRead()
{
    QVERIFY(!hardwareTime("/nonexistent/file"));
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(!hardwareTime(file.fileName().toStdString()));
    file.write("1795204800\n");
    file.flush();
    QCOMPARE(hardwareTime(file.fileName().toStdString()).value_or(0.0), 1795204800.0);
}

QTEST_GUILESS_MAIN(ClockWatchTest)
#include "tst_clockwatch.moc"
