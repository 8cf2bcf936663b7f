// SPDX-License-Identifier: MIT
// Does a signal end the program, with its settings saved, while an operation of the camera library
// hangs?
#include "tests/reliability/handledsignals.h"
#include "tests/reliability/hangingprogram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QtTest>
#include <csignal>

namespace
{
constexpr int longestEnd = 5000; ///< milliseconds from the signal on

QString settingsBeside(const QString &executable)
{
    return QFileInfo(executable).absolutePath() + "/Quorvandel.ini";
}

/// The program again, in a folder of its own: two run at once, each with its settings.
QString secondProgram()
{
    const QFileInfo first(QStringLiteral(PROGRAM_FILE));
    const QString second = first.absolutePath() + "/second/" + first.fileName();
    QFile::remove(second);
    const bool isThere =
        QDir().mkpath(QFileInfo(second).absolutePath()) && QFile::copy(first.filePath(), second);
    return isThere ? second : QString();
}
} // namespace

class HangingCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void endsInTime_data();
    void endsInTime();
    void hangingUpEndsItToo();

private:
    static void compareWithEnd(const HangingProgram &program, const QString &executable,
                               const QString &operation);
    QString executables[2]{QStringLiteral(PROGRAM_FILE), {}};
};

void HangingCallsTest::initTestCase()
{
    restoreSignals();
    executables[1] = secondProgram();
    QVERIFY(!executables[1].isEmpty());
}

void HangingCallsTest::endsInTime_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("then");    // what the user does while the camera is live
    QTest::addColumn<QByteArray>("sign"); // of the moment to send the signal
    const QByteArray hangs = "the library hangs";
    for (const char *const operation :
         {"InitVELDIXResource", "ScanVELDIX", "GetVELDIXId", "OpenVELDIX", "SetVELDIXReadMode",
          "SetVELDIXStreamMode", "InitVELDIX", "SetVELDIXBitsMode", "SetVELDIXBinMode",
          "SetVELDIXResolution", "GetVELDIXParam", "SetVELDIXParam", "BeginVELDIXLive",
          "GetVELDIXLiveFrame"})
        QTest::newRow(operation) << operation << QString() << hangs;
    for (const char *const operation : {"StopVELDIXLive", "CloseVELDIX"}) {
        QTest::addRow("%s at Disconnect", operation) << operation << "Disconnect" << hangs;
        QTest::addRow("%s as the window closes", operation)
            << operation << "as the window closes" << QByteArray("the camera is live");
    }
}

/// One program gets SIGTERM, the other SIGINT.
void HangingCallsTest::endsInTime()
{
    QFETCH(QString, operation);
    QFETCH(QString, then);
    QFETCH(QByteArray, sign);
    HangingProgram first(operation, then), second(operation, then, executables[1]);
    HangingProgram *const programs[] = {&first, &second};
    for (const QString &executable : executables)
        QFile::remove(settingsBeside(executable));
    for (HangingProgram *const program : programs)
        program->start();
    for (HangingProgram *const program : programs)
        QVERIFY2(program->reaches(sign), program->errors);
    for (const QString &executable : executables)
        QVERIFY(!QFile::exists(settingsBeside(executable)));

    first.send(SIGTERM);
    second.send(SIGINT);
    for (HangingProgram *const program : programs)
        QVERIFY2(program->endsBy(longestEnd), program->errors);
    for (int i = 0; i < 2; ++i)
        compareWithEnd(*programs[i], executables[i], operation);
}

void HangingCallsTest::hangingUpEndsItToo()
{
    QFile::remove(settingsBeside(executables[0]));
    HangingProgram program("OpenVELDIX", {});
    program.start();
    QVERIFY2(program.reaches("the library hangs"), program.errors);
    program.send(SIGHUP);
    QVERIFY2(program.endsBy(longestEnd), program.errors);
    compareWithEnd(program, executables[0], "OpenVELDIX");
}

void HangingCallsTest::compareWithEnd(const HangingProgram &program, const QString &executable,
                                      const QString &operation)
{
    const QSettings file(settingsBeside(executable), QSettings::IniFormat);
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
