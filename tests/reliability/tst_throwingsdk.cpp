// SPDX-License-Identifier: MIT
// Is an exception out of an operation of the camera library a failure of that call, and no more?
#include "tests/reliability/sdkwindow.h"
#include "tests/support/logrecorder.h"

#include <QtTest>
#include <functional>
#include <optional>
#include <stdexcept>

namespace
{
struct NotAnException {
};
class Mute : public std::exception
{
public:
    const char *what() const noexcept override { return nullptr; }
};

/// What is thrown, and how the log names it.
struct Kind {
    const char *name;
    void (*raise)();
    const char *logged;
};
const Kind kinds[] = {
    {"std::runtime_error", [] { throw std::runtime_error("the cable is loose"); },
     "the cable is loose"},
    {"an exception without a text", [] { throw Mute(); }, ""},
    {"a number", [] { throw 115; }, "not a std::exception"},
    {"an object of a class of its own", [] { throw NotAnException(); }, "not a std::exception"},
};

/// What an operation's failure leads to.
struct Failure {
    const char *operation;
    bool connects;        ///< Connect succeeds all the same
    bool disconnects;     ///< so does Disconnect
    const char *critical; ///< the program's own line, if any
    const char *box;      ///< of Connect, if any
};
constexpr auto notFound = "Not Found VELDIX Quorvandel equipment!";
const Failure failures[] = {
    {"InitVELDIXResource", false, true, "", ""},
    {"ScanVELDIX", false, true, "", notFound},
    {"GetVELDIXId", false, true, "", notFound},
    {"OpenVELDIX", false, true, "OpenVELDIX failure!",
     "Can not connect Quorvandel as OpenVELDIX error!"},
    {"SetVELDIXReadMode", true, true, "SetVELDIXReadMode 0 Failure", ""},
    {"SetVELDIXStreamMode", false, true, "SetVELDIXStreamMode 1 Failure", ""},
    {"InitVELDIX", false, true, "InitVELDIX failure!",
     "Can not connect Quorvandel as InitVELDIX error!"},
    {"SetVELDIXBitsMode", true, true, "", ""},
    {"SetVELDIXBinMode", true, true, "", ""},
    {"SetVELDIXResolution", true, true, "", ""},
    {"GetVELDIXParam", true, true, "", ""},
    {"SetVELDIXParam", true, true, "", ""},
    {"BeginVELDIXLive", true, true, "BeginVELDIXLive failure", ""},
    {"GetVELDIXLiveFrame", true, true, "", ""},
    {"StopVELDIXLive", true, true, "", ""},
    {"CloseVELDIX", true, false, "", ""},
};
} // namespace
Q_DECLARE_METATYPE(Kind)
Q_DECLARE_METATYPE(Failure)

class ThrowingSdkTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QCOMPARE(sdkViolations(), QStringList()); }
    void failure_data();
    void failure();
};

void ThrowingSdkTest::failure_data()
{
    QTest::addColumn<Failure>("failure");
    QTest::addColumn<Kind>("kind");
    for (const Failure &failure : failures)
        for (const Kind &kind : kinds)
            QTest::addRow("%s throws %s", failure.operation, kind.name) << failure << kind;
}

/// It throws from before the start on, while connected, at the end; then no more.
void ThrowingSdkTest::failure()
{
    QFETCH(Failure, failure);
    QFETCH(Kind, kind);
    const bool neverReady = qstrcmp(failure.operation, "InitVELDIXResource") == 0;
    const LogRecorder log;
    std::optional<CameraWindow> w;
    w.emplace(QByteArray(), [&] {
        sdk().observe(failure.operation, kind.raise);
        giveGoodFrames();
    });
    QCOMPARE(bool(w->session().camera.sdkReady), !neverReady);
    {
        const BoxWatcher boxes;
        w->trigger("actionConnect");
        QCOMPARE(boxes.boxes().size(), *failure.box ? 1 : 0);
        if (*failure.box)
            QCOMPARE(boxes.boxes().first().text, QString(failure.box));
    }
    QCOMPARE(bool(w->session().camera.cameraConnected), failure.connects);
    if (failure.connects) {
        moveControls(*w);
        w->trigger("actionConnect");
        QTRY_COMPARE(bool(w->session().camera.cameraConnected), !failure.disconnects);
    }
    const QString thrown = QStringLiteral("%1 threw an exception: ").arg(failure.operation);
    // Once, however often it is called.
    QTRY_COMPARE(log.texts(QtCriticalMsg).filter(thrown), QStringList(thrown + kind.logged));
    QStringList others = log.texts(QtCriticalMsg);
    others.removeAll(thrown + kind.logged);
    others.removeAll("InitVELDIXResource: failed");
    QCOMPARE(others, *failure.critical ? QStringList(failure.critical) : QStringList());

    sdk().observe(failure.operation, {});
    if (neverReady) { // only a new start can recover
        w.reset();
        w.emplace();
    }
    QVERIFY(worksAgain(*w));
}

QTEST_MAIN(ThrowingSdkTest)
#include "tst_throwingsdk.moc"
