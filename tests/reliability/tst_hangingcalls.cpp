// SPDX-License-Identifier: MIT
// Does a signal end the program, with its settings saved, while an operation of the camera library
// hangs?
#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <sys/types.h>

namespace
{
constexpr int longestEnd = 5000; ///< milliseconds from the signal on

QString settingsPath()
{
    return QFileInfo(QStringLiteral(PROGRAM_FILE)).absolutePath() + "/Quorvandel.ini";
}
} // namespace

class HangingCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void endsInTime_data();
    void endsInTime();
};

void HangingCallsTest::initTestCase()
{
    // A shell may have started the tests with SIGINT ignored, which children inherit.
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, SIG_DFL);
}

void HangingCallsTest::endsInTime_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("then");    // what the user does while the camera is live
    QTest::addColumn<QByteArray>("sign"); // of the moment to send the signal
    QTest::addColumn<int>("number");
    const auto row = [](const char *operation, const char *then, int number,
                        const char *sign = "the library hangs") {
        QTest::addRow("%s hangs %s, %s", operation, then,
                      number == SIGTERM  ? "SIGTERM"
                      : number == SIGINT ? "SIGINT"
                                         : "SIGHUP")
            << QString(operation) << QString(then) << QByteArray(sign) << number;
    };
    for (const char *const operation :
         {"InitVELDIXResource", "ScanVELDIX", "GetVELDIXId", "OpenVELDIX", "SetVELDIXReadMode",
          "SetVELDIXStreamMode", "InitVELDIX", "SetVELDIXBitsMode", "SetVELDIXBinMode",
          "SetVELDIXResolution", "GetVELDIXParam", "SetVELDIXParam", "BeginVELDIXLive",
          "GetVELDIXLiveFrame"})
        row(operation, "", SIGTERM);
    for (const char *const operation : {"InitVELDIXResource", "ScanVELDIX", "SetVELDIXParam"})
        row(operation, "", SIGINT);
    row("OpenVELDIX", "", SIGHUP);
    row("GetVELDIXLiveFrame", "", SIGINT);
    for (const char *const operation : {"StopVELDIXLive", "CloseVELDIX"}) {
        row(operation, "Disconnect", SIGTERM);
        row(operation, "Disconnect", SIGINT);
        row(operation, "as the window closes", SIGTERM, "the camera is live");
    }
}

void HangingCallsTest::endsInTime()
{
    QFETCH(QString, operation);
    QFETCH(QString, then);
    QFETCH(QByteArray, sign);
    QFETCH(int, number);
    QFile::remove(settingsPath());
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    environment.insert("XDG_CONFIG_HOME", home.path() + "/config");
    environment.insert("QT_LOGGING_TO_CONSOLE", "1");
    environment.insert("LD_LIBRARY_PATH", HANGING_FOLDER);
    environment.insert("HANGING_SDK", operation);
    environment.insert("HANGING_SDK_THEN", then);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setReadChannel(QProcess::StandardError);
    program.start(PROGRAM_FILE, QStringList());
    QByteArray errors;
    while (!errors.contains(sign) && program.waitForReadyRead(patience))
        errors += program.readAllStandardError();
    QVERIFY2(errors.contains(sign), errors);
    QVERIFY(!QFile::exists(settingsPath()));

    QElapsedTimer timer;
    timer.start();
    ::kill(pid_t(program.processId()), number);
    QVERIFY2(program.waitForFinished(patience), "the program does not end");
    QVERIFY2(timer.elapsed() < longestEnd, qPrintable(QString::number(timer.elapsed())));
    errors += program.readAllStandardError();
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QVERIFY2(program.exitCode() == 0, errors);
    const QSettings file(settingsPath(), QSettings::IniFormat);
    QCOMPARE(file.allKeys().size(), 12);
    // What was changed just before the call is saved; the first call comes before the window.
    QCOMPARE(file.value("STYLE/style").toString(),
             QString(operation == "InitVELDIXResource" ? "Color" : "Mono"));
    const bool byForce = operation != "BeginVELDIXLive" && operation != "GetVELDIXLiveFrame";
    QCOMPARE(errors.contains("the program ends by force"), byForce);
    QCOMPARE(errors.contains("the camera is not closed"), !byForce);
}

QTEST_GUILESS_MAIN(HangingCallsTest)
#include "tst_hangingcalls.moc"
