// SPDX-License-Identifier: MIT
// Does the session connect, report what goes wrong with the camera, and go on when it can?
#include "bench/assistant/librarymount.h"
#include "tests/assistant/guidetest.h"
#include "tests/support/logrecorder.h"
#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <functional>

using namespace assistant;

namespace
{
constexpr int promptly = 50; // milliseconds a call may take, on a busy machine
} // namespace

class AssistantSessionTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void namesCamerasAndConnects();
    void missingCameraIsReported();
    void anotherCameraWillDo();
    void secondCameraIsChosen();
    void exposureIsSet();
    void automaticExposureReachesTheCamera();
    void unpluggedAndBack();
    void failingCameraIsTriedAgain();
    void aFailedRecordingIsSeen();
    void clockBehindItsFilesIsReported_data();
    void clockBehindItsFilesIsReported();
    void connectsAgain();
    void callsReturnAtOnce();

private:
    static bool comes(const std::function<bool()> &condition)
    {
        return QTest::qWaitFor(condition, patience);
    }
    static bool showsFirst(const AssistantSession &session, AdviceCode code)
    {
        return session.latest().status.advice.front().code == code;
    }
};

void AssistantSessionTest::init()
{
    virtualsky::SkyState sky = plainNight();
    sky.date.reset();
    writeSky(sky);
}

void AssistantSessionTest::namesCamerasAndConnects()
{
    AssistantSession session({});
    QVERIFY(comes([&] { return session.link().state == CameraLink::State::Idle; }));
    QCOMPARE(session.link().cameras, std::vector<std::string>{"QUORVANDEL-V0001"});
    QVERIFY(showsFirst(session, AdviceCode::ConnectCamera));
    QVERIFY(session.latest().status.stage == Stage::Connect);
    QVERIFY(session.latest().status.sky != nullptr);
    session.connectCamera();
    QVERIFY(comes([&] { return session.latest().status.stage == Stage::Axis; }));
    const assistant::Snapshot now = session.latest();
    QCOMPARE(now.picture.size(), QSize(1280, 960));
    QCOMPARE(now.picture.format(), QImage::Format_Grayscale8);
    QVERIFY(now.status.frame > 0);
    QVERIFY(now.status.sky->status == recognition::RecognitionStatus::Recognised);
    QCOMPARE(session.link().id, std::string("QUORVANDEL-V0001"));
    session.disconnectCamera();
    QVERIFY(comes([&] { return session.link().state == CameraLink::State::Idle; }));
    QVERIFY(showsFirst(session, AdviceCode::ConnectCamera));
    QVERIFY(session.latest().picture.isNull());
    QVERIFY(session.close(patience));
}

/// The camera of last night is a preference: another one will do.
void AssistantSessionTest::anotherCameraWillDo()
{
    AssistantSession session({});
    session.connectCamera("QUORVANDEL-elsewhere");
    QVERIFY(comes([&] { return session.link().state == CameraLink::State::Live; }));
    QCOMPARE(session.link().id, std::string("QUORVANDEL-V0001"));
    QVERIFY(session.close(patience));
}

void AssistantSessionTest::missingCameraIsReported()
{
    virtualsky::SkyState sky = plainNight();
    sky.date.reset();
    sky.cameras = 0;
    writeSky(sky);
    AssistantSession session({});
    session.connectCamera();
    QVERIFY(comes([&] { return showsFirst(session, AdviceCode::NoCamera); }));
    sky.cameras = 1; // it is found as soon as it is there
    writeSky(sky);
    QVERIFY(comes([&] { return session.latest().status.frame > 0; }));
}

void AssistantSessionTest::secondCameraIsChosen()
{
    virtualsky::SkyState sky = plainNight();
    sky.date.reset();
    sky.cameras = 2;
    sky.channels = 3;
    writeSky(sky);
    AssistantSession session({});
    QVERIFY(comes([&] { return session.link().cameras.size() == 2; }));
    session.connectCamera("QUORVANDEL-V0002");
    QVERIFY(comes([&] { return session.latest().status.frame > 0; }));
    QCOMPARE(session.link().id, std::string("QUORVANDEL-V0002"));
    QCOMPARE(session.latest().picture.format(), QImage::Format_RGB888);
}

void AssistantSessionTest::exposureIsSet()
{
    AssistantSession session({});
    session.connectCamera();
    QVERIFY(comes([&] { return session.latest().status.frame > 0; }));
    QVERIFY(session.latest().status.automaticExposure);
    QCOMPARE(session.latest().status.exposureMicroseconds, 200000.0);
    session.setExposure(50000.0);
    QVERIFY(comes([&] {
        const Status now = session.latest().status;
        return now.exposureMicroseconds == 50000.0 && !now.automaticExposure;
    }));
    session.setGain(70.0);
    QVERIFY(comes([&] { return session.link().gain == 70.0; }));
}

void AssistantSessionTest::automaticExposureReachesTheCamera()
{
    AssistantSession session({});
    session.connectCamera();
    session.setExposure(2000.0);
    QVERIFY(comes([&] { return session.latest().status.exposureMicroseconds == 2000.0; }));
    session.setAutomaticExposure(true);
    QVERIFY(comes([&] { return session.latest().status.exposureMicroseconds > 20000.0; }));
    QVERIFY(comes([&] { return session.latest().status.stage == Stage::Axis; }));
}

/// The axis stays known; figures are shown again only with the first new frame.
void AssistantSessionTest::unpluggedAndBack()
{
    const virtualsky::SkyState start = plainNight();
    LibraryMount mount(start, settingsFor(start));
    QVERIFY(turnAxisAsTold(mount));
    QVERIFY(nextFigure(mount).has_value());
    AssistantSession &session = mount.session();
    session.setExposure(100000.0);
    QVERIFY(comes([&] { return session.link().exposure == 100000.0; }));
    virtualsky::SkyState unplugged = mount.sky();
    unplugged.unplugged = true;
    const LogRecorder log;
    mount.setSky(unplugged);
    QVERIFY(comes([&] { return showsFirst(session, AdviceCode::CameraLost); }));
    QVERIFY(
        log.contains(QtWarningMsg, "no frame from the camera: it is closed and looked for again"));
    const Status lost = session.latest().status;
    QVERIFY(lost.stage == Stage::Bolts);
    QVERIFY(!lost.error && !lost.pole);
    QVERIFY(lost.axis.place.has_value());
    QVERIFY(lost.sky != nullptr);
    QVERIFY(lost.advice.front().first >= CameraOperator::silence);
    unplugged.unplugged = false;
    mount.setSky(unplugged);
    QVERIFY(comes([&] { return session.latest().status.error.has_value(); }));
    QVERIFY(session.latest().status.stage == Stage::Bolts);
    QVERIFY(isTrue(*nextFigure(mount), mount));
    QVERIFY(comes([&] { return session.link().exposure == 100000.0; }));
}

void AssistantSessionTest::failingCameraIsTriedAgain()
{
    virtualsky::SkyState sky = plainNight();
    sky.date.reset();
    sky.fail.set(std::size_t(virtualsky::Operation::Init));
    writeSky(sky);
    AssistantSession session({});
    session.connectCamera();
    QVERIFY(comes([&] { return showsFirst(session, AdviceCode::CameraRefuses); }));
    QVERIFY(session.latest().status.stage == Stage::Connect);
    QCOMPARE(session.latest().status.advice.front().text, session.link().id);
    QVERIFY(!session.link().id.empty());
    sky.fail.reset();
    writeSky(sky);
    QVERIFY(comes([&] { return session.latest().status.frame > 0; }));
}

/// Before the hints that stay all night, here that of the missing site.
void AssistantSessionTest::aFailedRecordingIsSeen()
{
    assistant::Settings settings;
    settings.recording = true;
    settings.recordingFolder = QStringLiteral("/dev/null/frames");
    AssistantSession session(settings);
    session.connectCamera();
    const auto isSeen = [&] {
        const std::vector<Advice> advice = session.latest().status.advice;
        return advice.size() > 2 && advice[1].code == AdviceCode::RecordingFailed &&
               advice.back().code == AdviceCode::SiteMissing;
    };
    QVERIFY(comes(isSeen));
}

void AssistantSessionTest::clockBehindItsFilesIsReported_data()
{
    QTest::addColumn<bool>("synchronised");
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("began its time again") << false << false;
    QTest::newRow("synchronised, whatever its files say") << true << false;
    QTest::newRow("confirmed by the hardware's clock") << false << true;
}

void AssistantSessionTest::clockBehindItsFilesIsReported()
{
    QFETCH(bool, synchronised);
    QFETCH(bool, confirmed);
    Clocks clocks = systemClocks();
    const double behind = clocks.utc() - clocks.certainPast + 2.0 * datesSlack;
    clocks.utc = [behind] { return systemClocks().utc() - behind; };
    clocks.synchronised = [synchronised] { return synchronised; };
    clocks.confirmed = [confirmed] { return confirmed; };
    AssistantSession session({}, clocks);
    session.connectCamera();
    QVERIFY(comes([&] { return session.latest().status.frame > 0; }));
    QCOMPARE(says(session.latest().status, AdviceCode::ClockBehind), !synchronised && !confirmed);
}

/// A new connection begins from the first stage.
void AssistantSessionTest::connectsAgain()
{
    AssistantSession session({});
    for (int i = 0; i < 3; ++i) {
        session.connectCamera();
        QVERIFY(comes([&] { return session.latest().status.stage == Stage::Axis; }));
        session.connectCamera(); // without disconnecting first
        QVERIFY(session.latest().status.stage != Stage::Axis);
    }
    QVERIFY(comes([&] { return session.latest().status.stage == Stage::Axis; }));
}

void AssistantSessionTest::callsReturnAtOnce()
{
    AssistantSession session({});
    const std::vector<std::function<void()>> calls = {
        [&] { session.connectCamera(); },      [&] { session.latest(); },
        [&] { session.setExposure(20000.0); }, [&] { session.setGain(60.0); },
        [&] { session.setSettings({}); },      [&] { session.startAgain(); },
        [&] { session.findCameras(); },        [&] { session.disconnectCamera(); }};
    for (int i = 0; i < 20; ++i)
        for (const auto &call : calls) {
            QElapsedTimer timer;
            timer.start();
            call();
            QVERIFY2(timer.elapsed() < promptly, qPrintable(QString::number(timer.elapsed())));
            QTest::qWait(3);
        }
}

QTEST_GUILESS_MAIN(AssistantSessionTest)
#include "tst_assistantsession.moc"
