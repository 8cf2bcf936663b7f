// SPDX-License-Identifier: MIT
// Does a signal end the assistant in time, while an operation of the camera library hangs?
#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <sys/types.h>

namespace
{
constexpr int longestEnd = 5500; ///< milliseconds from the signal on
} // namespace

class AssistantSignalsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void endsInTime_data();
    void endsInTime();
};

void AssistantSignalsTest::initTestCase()
{
    // A shell may have started the tests with SIGINT ignored, which children inherit.
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, SIG_DFL);
}

void AssistantSignalsTest::endsInTime_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QByteArray>("sign"); // of the moment to send the signal
    QTest::addColumn<int>("number");
    const QByteArray hangs = "the library hangs", isLive = "the camera is live";
    for (const char *const operation :
         {"InitVELDIXResource", "ScanVELDIX", "OpenVELDIX", "SetVELDIXParam", "GetVELDIXLiveFrame"})
        QTest::newRow(operation) << operation << hangs << SIGTERM;
    QTest::newRow("a frame, SIGINT") << "GetVELDIXLiveFrame" << hangs << SIGINT;
    QTest::newRow("stopping") << "StopVELDIXLive" << isLive << SIGTERM;
    QTest::newRow("closing") << "CloseVELDIX" << isLive << SIGTERM;
}

void AssistantSignalsTest::endsInTime()
{
    QFETCH(QString, operation);
    QFETCH(QByteArray, sign);
    QFETCH(int, number);
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    environment.insert("XDG_CONFIG_HOME", home.path() + "/config");
    environment.insert("QT_LOGGING_TO_CONSOLE", "1");
    environment.insert("LD_LIBRARY_PATH", HANGING_FOLDER);
    environment.insert("HANGING_SDK", operation);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setReadChannel(QProcess::StandardError);
    program.start(PROGRAM_FILE, {"--connect"});
    QByteArray errors;
    while (!errors.contains(sign) && program.waitForReadyRead(patience))
        errors += program.readAllStandardError();
    QVERIFY2(errors.contains(sign), errors);

    QElapsedTimer timer;
    timer.start();
    ::kill(pid_t(program.processId()), number);
    QVERIFY2(program.waitForFinished(patience), "the program does not end");
    QVERIFY2(timer.elapsed() < longestEnd, qPrintable(QString::number(timer.elapsed())));
    errors += program.readAllStandardError();
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QVERIFY2(program.exitCode() == 0, errors);
}

QTEST_GUILESS_MAIN(AssistantSignalsTest)
#include "tst_assistantsignals.moc"
