// SPDX-License-Identifier: MIT
// Is it known how the work of a child process ended, and is only a call taken for a hang?
#include <QtTest>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "cameracommand/childprocess.h"
#include "cameracommand/libraryguard.h"

using Fate = ChildEnd::Fate;

class ChildProcessTest : public QObject
{
    Q_OBJECT

private slots:
    void ends_data();
    void ends();
    void endsWithoutAStatus();
    void eachCallHasItsTimeout();
    void patienceWithTheLibrary_data();
    void patienceWithTheLibrary();
    void linesOutliveACrash();
    void endsWithItsParent();
    void cleanup();
};

/// No process is left behind.
void ChildProcessTest::cleanup()
{
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
}

void ChildProcessTest::ends_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<bool>("inCall");
    QTest::addColumn<bool>("returns");
    QTest::addColumn<QByteArray>("fault");
    for (const QByteArray way : {"return", "crash"})
        QTest::addRow("SIGCHLD is ignored: %s", way.constData())
            << way << (way == "crash") << (way == "return")
            << QByteArray(way == "crash" ? "it crashes in Scan: Segmentation fault" : "");
    QTest::newRow("returns") << QByteArray("return") << false << true << QByteArray();
    QTest::newRow("a slow call") << QByteArray("slow") << true << true << QByteArray();
    QTest::newRow("own work, longer than the patience")
        << QByteArray("long") << false << true << QByteArray();
    QTest::newRow("a call that does not return")
        << QByteArray("long") << true << false
        << QByteArray("it does not return within 1 seconds in Scan");
    QTest::newRow("crashes in a call") << QByteArray("crash") << true << false
                                       << QByteArray("it crashes in Scan: Segmentation fault");
    QTest::newRow("crashes") << QByteArray("crash") << false << false
                             << QByteArray("it crashes: Segmentation fault");
    QTest::newRow("ends in a call") << QByteArray("end") << true << false
                                    << QByteArray("it ends its process in Scan, with status 3");
}

void ChildProcessTest::ends()
{
    QFETCH(QByteArray, way);
    QFETCH(bool, inCall);
    QFETCH(bool, returns);
    QFETCH(QByteArray, fault);
    const auto work = [&](const ChildReport &report) {
        report.call("Init");
        report.call(inCall ? "Scan" : nullptr);
        if (way == "slow")
            ::usleep(300000);
        if (way == "long") // where it is a call, it is not awaited
            ::usleep(inCall ? 60000000 : 2500000);
        if (way == "crash")
            std::raise(SIGSEGV);
        if (way == "end")
            ::_exit(3);
        return 7;
    };
    if (QByteArray(QTest::currentDataTag()).startsWith("SIGCHLD is ignored"))
        std::signal(SIGCHLD, SIG_IGN); // as a program inherits it
    ChildEnd end;
    // A busy machine may delay one try; a wait for an end that has been delays them all.
    qint64 passed = 0;
    for (int i = 0; i == 0 || (i < 5 && way == "return" && passed >= 1500); ++i) {
        QElapsedTimer time;
        time.start();
        end = runInChild(work, std::chrono::milliseconds(1000));
        passed = time.elapsed();
    }
    QVERIFY2(way != "return" || passed < 1500, qPrintable(QString::number(passed)));
    QCOMPARE(end.fate, returns ? Fate::Returned : Fate::Failed);
    QCOMPARE(end.status, returns ? 7 : 0);
    QCOMPARE(QByteArray::fromStdString(end.fault), fault);
    QCOMPARE(end.call, std::string(inCall ? "Scan" : ""));
}

/// Other code takes it: an end that nobody can tell is no endless wait.
void ChildProcessTest::endsWithoutAStatus()
{
    const auto work = [](const ChildReport &) {
        ::_exit(3);
        return 0;
    };
    std::thread other([] {
        for (int i = 0; i < 20000 && ::waitpid(-1, nullptr, 0) < 0; ++i)
            ::usleep(500);
    });
    const ChildEnd end = runInChild(work, std::chrono::milliseconds(1000));
    other.join();
    QCOMPARE(end.fate, Fate::Failed);
    QVERIFY2(QByteArray::fromStdString(end.fault).startsWith("it ends its process"),
             end.fault.c_str());
}

void ChildProcessTest::eachCallHasItsTimeout()
{
    const auto work = [](const ChildReport &report) {
        for (const char *call : {"Open", "Scan"}) {
            report.call(call);
            ::usleep(std::string(call) == "Open" ? 1500000 : 60000000);
        }
        return 0;
    };
    const auto patience = [](const std::string &call) {
        return std::chrono::milliseconds(call == "Open" ? 60000 : 1000);
    };
    QCOMPARE(runInChild(work, patience).fault,
             std::string("it does not return within 1 seconds in Scan"));
}

void ChildProcessTest::patienceWithTheLibrary_data()
{
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<double>("exposure"); // seconds
    QTest::addColumn<int>("patience");    // milliseconds
    const auto row = [](const char *call, double exposure, int patience) {
        QTest::addRow("%s, %g s", call, exposure) << QByteArray(call) << exposure << patience;
    };
    for (const char *call : {"", "loading", "ScanVELDIX", "GetVELDIXLiveFrame"}) {
        row(call, 0.0, 10000);
        row(call, 1.0, 12000);
        row(call, 30.0, 70000);
    }
    for (const char *call : {"OpenVELDIX", "InitVELDIX"}) {
        row(call, 0.0, 30000);
        row(call, 30.0, 90000);
    }
}

void ChildProcessTest::patienceWithTheLibrary()
{
    QFETCH(QByteArray, call);
    QFETCH(double, exposure);
    QFETCH(int, patience);
    QCOMPARE(patienceFor(call.toStdString(), exposure).count(), std::int64_t(patience));
}

void ChildProcessTest::linesOutliveACrash()
{
    const auto work = [](const ChildReport &report) {
        report.tell("one\nline");
        report.tell("");
        std::abort();
        return 0;
    };
    const ChildEnd end = runInChild(work, std::chrono::milliseconds(1000));
    QVERIFY(end.fate == Fate::Failed);
    QCOMPARE(end.lines, (std::vector<std::string>{"one line", ""}));
}

/// A command that is killed leaves nobody at the camera.
void ChildProcessTest::endsWithItsParent()
{
    int alive[2]; // its end is read once nobody has it open for writing
    QCOMPARE(::pipe(alive), 0);
    const pid_t command = ::fork();
    if (command == 0) {
        const auto work = [&](const ChildReport &) {
            [[maybe_unused]] const ssize_t written = ::write(alive[1], "x", 1);
            for (;;)
                ::pause();
            return 0;
        };
        runInChild(work, std::chrono::milliseconds(1000));
        ::_exit(0);
    }
    ::close(alive[1]);
    char byte = 0;
    QCOMPARE(::read(alive[0], &byte, 1), ssize_t(1));
    ::kill(command, SIGKILL);
    QCOMPARE(::waitpid(command, nullptr, 0), command);
    QCOMPARE(::read(alive[0], &byte, 1), ssize_t(0));
    ::close(alive[0]);
}

QTEST_GUILESS_MAIN(ChildProcessTest)
#include "tst_childprocess.moc"
