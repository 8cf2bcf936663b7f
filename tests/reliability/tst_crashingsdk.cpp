// SPDX-License-Identifier: MIT
// Does the program start although the camera library crashes, exits or hangs while it is loaded?
#include "tests/reliability/handledsignals.h"
#include "tests/support/patience.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <map>

namespace
{
/// A start of the program beside a camera library that misbehaves.
struct Start {
    QTemporaryDir home;
    QProcess program;
    QByteArray errors;
};
} // namespace

class CrashingSdkTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { starts.clear(); }
    void programStarts_data();
    void programStarts();

private:
    std::map<QString, Start> starts; // by the way that the library misbehaves
};

/// All at once: a library that hangs takes ten seconds.
void CrashingSdkTest::initTestCase()
{
    for (const char *const way :
         {"abort", "segmentation fault", "exit", "exit at once", "hang", ""}) {
        Start &start = starts[way];
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", start.home.path());
        environment.insert("XDG_CONFIG_HOME", start.home.path() + "/config");
        environment.insert("QT_LOGGING_TO_CONSOLE", "1");
        environment.insert("LD_LIBRARY_PATH", CRASHING_FOLDER);
        environment.insert("CRASHING_SDK", way);
        start.program.setProcessEnvironment(environment);
        start.program.setReadChannel(QProcess::StandardError);
        start.program.start(PROGRAM_FILE, QStringList());
    }
}

void CrashingSdkTest::programStarts_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QByteArray>("complaint");
    QTest::addColumn<QByteArray>("start"); // the outcome
    // exit() never returns within the loader, as if it hung; _exit() ends with a success.
    for (const char *const way : {"abort", "segmentation fault", "exit at once", "exit", "hang"})
        QTest::newRow(way) << way << QByteArray("is there and cannot be used")
                           << QByteArray("InitVELDIXSDK success");
    QTest::newRow("loads, without any function")
        << "" << QByteArray("lacks the function") << QByteArray("InitVELDIXResource: failed");
}

void CrashingSdkTest::programStarts()
{
    QFETCH(QString, way);
    QFETCH(QByteArray, complaint);
    QFETCH(QByteArray, start);
    QProcess &program = starts[way].program;
    QByteArray &errors = starts[way].errors;
    errors += program.readAllStandardError();
    while (!errors.contains(start) && program.waitForReadyRead(2 * patience))
        errors += program.readAllStandardError();
    QVERIFY2(errors.contains(start), errors);
    QVERIFY2(errors.contains(complaint), errors);
    QTRY_VERIFY(waitsForSignal(program.processId(), SIGTERM));
    program.terminate();
    QVERIFY(endsAfterSignal(program));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

QTEST_GUILESS_MAIN(CrashingSdkTest)
#include "tst_crashingsdk.moc"
