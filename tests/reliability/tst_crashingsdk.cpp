// SPDX-License-Identifier: MIT
// Does the program start although the camera library crashes, exits or hangs while it is loaded?
#include "tests/reliability/handledsignals.h"
#include "tests/support/patience.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>

class CrashingSdkTest : public QObject
{
    Q_OBJECT

private slots:
    void programStarts_data();
    void programStarts();
};

void CrashingSdkTest::programStarts_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<QByteArray>("complaint");
    QTest::addColumn<QByteArray>("start"); // the outcome
    for (const char *const way : {"abort", "segmentation fault", "exit", "hang"})
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
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    environment.insert("XDG_CONFIG_HOME", home.path() + "/config");
    environment.insert("QT_LOGGING_TO_CONSOLE", "1");
    environment.insert("LD_LIBRARY_PATH", CRASHING_FOLDER);
    environment.insert("CRASHING_SDK", way);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setReadChannel(QProcess::StandardError);
    program.start(PROGRAM_FILE, QStringList());
    QByteArray errors;
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
