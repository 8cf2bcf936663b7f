// SPDX-License-Identifier: MIT
// Is a camera library whose call never returns reported, with the window's thread free all the
// time?
#include "assistant/assistantsession.h"

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

// Neither the library's thread nor what it uses can be ended: the process ends at once.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    AssistantHangTest test;
    const int failures = QTest::qExec(&test, argc, argv);
    std::_Exit(failures);
}
#include "tst_assistanthang.moc"
