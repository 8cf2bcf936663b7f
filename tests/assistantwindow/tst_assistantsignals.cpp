// SPDX-License-Identifier: MIT
// Does a signal end the assistant in time, while an operation of the camera library hangs?
#include "tests/reliability/handledsignals.h"
#include "tests/reliability/hangingprogram.h"

#include <QtTest>
#include <csignal>

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
    restoreSignals();
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
    HangingProgram program(operation, {});
    program.start({"--connect"});
    QVERIFY2(program.reaches(sign), program.errors);
    program.send(number);
    QVERIFY2(program.endsBy(longestEnd), program.errors);
}

QTEST_GUILESS_MAIN(AssistantSignalsTest)
#include "tst_assistantsignals.moc"
