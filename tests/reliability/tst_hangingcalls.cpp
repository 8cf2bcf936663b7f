// SPDX-License-Identifier: MIT
// Does a signal end the program, with its settings saved, while an operation of the camera library
// hangs?
#include "tests/reliability/handledsignals.h"
#include "tests/reliability/hangingprogram.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QtTest>
#include <csignal>

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
    restoreSignals();
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
    HangingProgram program(operation, then);
    QVERIFY2(program.reaches(sign, {}), program.errors);
    QVERIFY(!QFile::exists(settingsPath()));

    QVERIFY2(program.endsBy(number, longestEnd), program.errors);
    const QSettings file(settingsPath(), QSettings::IniFormat);
    QCOMPARE(file.allKeys().size(), 12);
    // What was changed just before the call is saved; the first call comes before the window.
    QCOMPARE(file.value("STYLE/style").toString(),
             QString(operation == "InitVELDIXResource" ? "Color" : "Mono"));
    const bool byForce = operation != "BeginVELDIXLive" && operation != "GetVELDIXLiveFrame";
    QCOMPARE(program.errors.contains("the program ends by force"), byForce);
    QCOMPARE(program.errors.contains("the camera is not closed"), !byForce);
}

QTEST_GUILESS_MAIN(HangingCallsTest)
#include "tst_hangingcalls.moc"
