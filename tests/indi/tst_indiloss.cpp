// SPDX-License-Identifier: MIT
// Do frames come back by themselves when server, driver or network is lost, and is no call of the
// camera library held up meanwhile?
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QtTest>

#include "tests/indi/cuttingproxy.h"
#include "tests/indi/indiserver.h"
#include "tests/indi/indisource.h"

namespace
{
framesources::SourceSettings exposures()
{
    framesources::SourceSettings settings;
    settings.stream = false;
    return settings;
}
} // namespace

class IndiLossTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void serverKilled();
    void serverStopped();
    void driverKilled();
    void noSuchDevice();
    void networkCut();
    void sourceEndsAtOnce();
};

void IndiLossTest::initTestCase()
{
    if (!IndiServer::isInstalled())
        QSKIP("indi-bin is not installed");
}

void IndiLossTest::serverKilled()
{
    IndiServer server;
    QVERIFY(server.start());
    IndiSource source(server.port, simulatedCamera, exposures());
    source.exposure = 0.05;
    QVERIFY(!source.frame().empty());
    for (int time = 0; time < 3; ++time) {
        server.end();
        QTRY_VERIFY_WITH_TIMEOUT(!source.isPresent(), 5000);
        while (!source.frame(500).empty()) {
        }
        QVERIFY(server.start());
        QVERIFY2(!source.frame(returnTimeout).empty(), qPrintable(source.lines().join("\n")));
        QVERIFY(source.isPresent());
    }
    QVERIFY(source.lines().join("\n").contains("lost"));
    QVERIFY2(source.slowest < callTimeout, qPrintable(QString::number(source.slowest)));
}

void IndiLossTest::serverStopped()
{
    IndiServer server;
    QVERIFY(server.start());
    IndiSource source(server.port, simulatedCamera, exposures());
    source.exposure = 0.05;
    QVERIFY(!source.frame().empty());
    for (const int pause : {1500, 9000}) { // the second is longer than a silence is borne
        server.signal(SIGSTOP);
        QElapsedTimer stopped;
        stopped.start();
        while (stopped.elapsed() < pause)
            source.frame(200);
        server.signal(SIGCONT);
        QVERIFY2(!source.frame(returnTimeout).empty(), qPrintable(source.lines().join("\n")));
    }
    QVERIFY2(source.slowest < callTimeout, qPrintable(QString::number(source.slowest)));
}

void IndiLossTest::driverKilled()
{
    IndiServer server;
    QVERIFY(server.start());
    IndiSource source(server.port, simulatedCamera, exposures());
    source.exposure = 0.05;
    for (int time = 0; time < 2; ++time) {
        QVERIFY(!source.frame().empty());
        const int before = source.lines().size();
        server.signalDrivers(SIGKILL); // the server starts it again
        QTRY_VERIFY_WITH_TIMEOUT((source.frame(50), source.lines().size() > before), 20000);
        QVERIFY2(!source.frame(returnTimeout).empty(), qPrintable(source.lines().join("\n")));
    }
    QVERIFY2(source.slowest < callTimeout, qPrintable(QString::number(source.slowest)));
}

void IndiLossTest::noSuchDevice()
{
    IndiServer server;
    QVERIFY(server.start());
    IndiSource source(server.port, "Another Camera", exposures());
    QTRY_VERIFY_WITH_TIMEOUT(!source.isPresent(), 10000);
    QVERIFY2(source.lines().join("\n").contains("it has: CCD Simulator"),
             qPrintable(source.lines().join("\n")));
}

void IndiLossTest::networkCut()
{
    IndiServer server;
    QVERIFY(server.start());
    CuttingProxy proxy(server.port);
    IndiSource source(proxy.port(), simulatedCamera, exposures());
    source.exposure = 0.02;
    for (int time = 0; time < 8; ++time) {
        proxy.cutAfter(QRandomGenerator(uint(time)).bounded(1, 3000000));
        QTRY_VERIFY_WITH_TIMEOUT((source.frame(100), proxy.isCut()), 30000);
        proxy.heal();
        QElapsedTimer healed;
        healed.start();
        cv::Mat frame;
        do
            frame = source.frame(returnTimeout);
        while (!frame.empty() && healed.elapsed() < 100); // one that was there before
        QVERIFY2(!frame.empty(), qPrintable(source.lines().join("\n")));
    }
    QVERIFY2(source.slowest < callTimeout, qPrintable(QString::number(source.slowest)));
}

void IndiLossTest::sourceEndsAtOnce()
{
    IndiServer server;
    QVERIFY(server.start());
    for (const bool stopped : {false, true}) {
        IndiSource source(server.port, simulatedCamera, exposures());
        QVERIFY(!source.frame().empty());
        if (stopped)
            server.signal(SIGSTOP);
        QElapsedTimer ending;
        ending.start();
        source.source.reset();
        QVERIFY2(ending.elapsed() < callTimeout, qPrintable(QString::number(ending.elapsed())));
    }
}

QTEST_GUILESS_MAIN(IndiLossTest)
#include "tst_indiloss.moc"
