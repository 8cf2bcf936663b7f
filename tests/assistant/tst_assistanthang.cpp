// SPDX-License-Identifier: MIT
// Is a camera library whose call never returns reported, with the window's thread free all the
// time?
#include "assistant/assistantsession.h"
#include "tests/support/logrecorder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QtTest>
#include <cstdlib>

using namespace assistant;

class AssistantHangTest : public QObject
{
    Q_OBJECT

private slots:
    void hangIsReported();
    void stopThatHangsAfterTheFetchIsNotWaitedFor();
};

void AssistantHangTest::hangIsReported()
{
    // The library never returns: nothing that it uses may go.
    AssistantSession &session = *new AssistantSession({});
    session.connectCamera();
    const auto hangs = [&] {
        return session.latest().status.advice.front().code == AdviceCode::CameraHangs;
    };
    QVERIFY(QTest::qWaitFor(hangs, 60000));
    const Status status = session.latest().status;
    QVERIFY(status.advice.front().first >= CameraOperator::silence);
    QVERIFY(!status.error);
    QElapsedTimer timer;
    timer.start();
    session.disconnectCamera();
    session.connectCamera();
    session.setExposure(1000.0);
    session.latest();
    QVERIFY(timer.elapsed() < 100);
    QVERIFY(!session.close(1000));
    QVERIFY(timer.elapsed() < 5000);
}

/// The fetch returns, so nothing but the thread in StopVELDIXLive is left: the session must not
/// count as closed, since its destructor would wait for that thread.
void AssistantHangTest::stopThatHangsAfterTheFetchIsNotWaitedFor()
{
    qputenv("HANGING_SDK", "StopUnderFetch");
    const LogRecorder log;
    AssistantSession &session = *new AssistantSession({});
    session.connectCamera();
    QVERIFY(QTest::qWaitFor(
        [&] { return log.contains(QtDebugMsg, "the library waits for its stop"); }, 60000));
    // Longer than the library's call is waited for.
    QVERIFY(!session.close(CameraHandle::sdkCallTimeout + 3000));
    QVERIFY(log.contains(QtDebugMsg, "the library hangs"));
}

// Neither the library's thread nor what it uses can be ended: the process ends at once.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    AssistantHangTest test;
    const int failures = QTest::qExec(&test, argc, argv);
    std::_Exit(failures);
}
#include "tst_assistanthang.moc"
