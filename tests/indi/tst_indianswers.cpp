// SPDX-License-Identifier: MIT
// How late do the windows of both programs answer while their camera by INDI is lost and comes
// back?
#include "app/stylesheet.h"
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/sessioninstrument.h"
#include "core/settingsfile.h"
#include "resources/resources.h"
#include "tests/indi/indisource.h"
#include "tests/indi/losses.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"
#include "virtualcamera/skyfile.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <optional>
#include <thread>
#include <utility>

namespace
{
/// How late the GUI thread gets to a timer: as late as to a key or the mouse. Without
/// `takenByOthers`.
class Lateness
{
public:
    Lateness()
    {
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, [this] { look(); });
        timer.start(interval);
        forget();
    }
    /// What the test itself did since the last timer does not count.
    void skip()
    {
        since.restart();
        before = ProcessorTimes::now();
    }
    void forget()
    {
        skip();
        greatest = 0;
    }
    /// Also of a call that ended just now, before any timer.
    qint64 milliseconds()
    {
        look();
        return greatest;
    }

private:
    void look()
    {
        const ProcessorTimes now = ProcessorTimes::now();
        greatest = std::max(greatest, since.restart() - interval - takenByOthers(before, now));
        before = now;
    }

    static constexpr int interval = 5; // milliseconds
    QTimer timer;
    QElapsedTimer since;
    qint64 greatest = 0;
    ProcessorTimes before;
};

constexpr char noVideo[] = "[camera]\nstream = false\n";

/// One program's window that is connected to its camera.
struct Program {
    std::unique_ptr<QWidget> window;
    std::function<qint64()> picture; // another number with each
    std::function<void()> close;
};
} // namespace

Q_DECLARE_METATYPE(Loss)

class IndiAnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void onlyOthersAreTakenOff_data();
    void onlyOthersAreTakenOff();
    void ourThreadsAreCounted();
    void windowAnswers_data();
    void windowAnswers();
    void cleanupTestCase();

private:
    void openWizard();
    void openAssistant();
    void change(bool toVideo);
    bool pictureComes();

    QString sky() const { return folder.filePath("sky.ini"); }

    const QTemporaryDir folder;
    LosableCamera camera;
    QString opened;
    bool isVideo = false;
    std::optional<assistantwindow::SessionInstrument> instrument;
    Program program;
};

void IndiAnswersTest::initTestCase()
{
    if (!IndiServer::isInstalled())
        QSKIP("indi-bin is not installed");
    initialiseResources();
    initialiseAssistantResources();
    QVERIFY(camera.start());
    QVERIFY(virtualsky::writeAtomically(sky().toStdString(), noVideo));
    qputenv("QUORVANDEL_SKY", QFile::encodeName(sky()));
    qputenv("QUORVANDEL_CAMERA",
            QStringLiteral("indi://127.0.0.1:%1/CCD Simulator").arg(camera.port()).toUtf8());
}

void IndiAnswersTest::openWizard()
{
    applyStyleSheet(*qApp, ":/qss/default.qss");
    auto window = std::make_unique<SessionWindow>();
    auto *const picture = window->findChild<QLabel *>("label_showImg");
    program.picture = [picture] { return picture->pixmap(Qt::ReturnByValue).cacheKey(); };
    window->resize(1280, 800);
    window->show();
    window->findChild<QAction *>("actionConnect")->trigger();
    program.window = std::move(window);
    program.close = [this] {
        program.window->close();
        program.window.reset();
    };
}

void IndiAnswersTest::openAssistant()
{
    const assistant::Settings settings;
    instrument.emplace(settings);
    auto window = std::make_unique<assistantwindow::AssistantWindow>(*instrument, settings,
                                                                     [](const auto &) {});
    program.picture = [this] { return qint64(instrument->latest().status.frame); };
    window->resize(800, 480);
    window->show();
    window->connectCamera();
    program.window = std::move(window);
    program.close = [this] {
        program.window.reset();
        QVERIFY(instrument->close(20000));
        instrument.reset();
    };
}

/// To our own camera with its video on, or to exposures of the simulated one, whose video is silent
/// without a lens. The program keeps its camera.
void IndiAnswersTest::change(bool toVideo)
{
    isVideo = toVideo;
    QVERIFY(camera.replace(toVideo));
    QVERIFY(virtualsky::writeAtomically(sky().toStdString(),
                                        toVideo ? "[camera]\nstream = true\n" : noVideo));
    const auto client = camera.server.client(camera.device);
    QVERIFY(client);
    QTRY_VERIFY((client->waitForNews(std::chrono::milliseconds(10)),
                 !toVideo || client->isOn("CCD_VIDEO_STREAM", "STREAM_ON").value_or(false)));
}

bool IndiAnswersTest::pictureComes()
{
    const qint64 now = program.picture();
    return comesTrue([&] { return program.picture() != now; });
}

void IndiAnswersTest::onlyOthersAreTakenOff_data()
{
    QTest::addColumn<qint64>("queued"); // milliseconds
    QTest::addColumn<qint64>("ours");
    QTest::addColumn<qint64>("taken");
    QTest::newRow("others alone") << qint64(50) << qint64(0) << qint64(50);
    QTest::newRow("some of it ours, perhaps") << qint64(50) << qint64(20) << qint64(30);
    QTest::newRow("all of it ours, perhaps") << qint64(50) << qint64(80) << qint64(0);
    QTest::newRow("nothing waited for") << qint64(0) << qint64(80) << qint64(0);
}

void IndiAnswersTest::onlyOthersAreTakenOff()
{
    QFETCH(qint64, queued);
    QFETCH(qint64, ours);
    QFETCH(qint64, taken);
    constexpr qint64 millisecond = 1000000;
    const ProcessorTimes before = {7 * millisecond, 3 * millisecond};
    const ProcessorTimes after = {before.queued + queued * millisecond,
                                  before.ours + ours * millisecond};
    QCOMPARE(takenByOthers(before, after), taken);
}

void IndiAnswersTest::ourThreadsAreCounted()
{
    constexpr qint64 work = 50000000; // nanoseconds
    const ProcessorTimes before = ProcessorTimes::now();
    std::thread([] {
        timespec run = {};
        while (run.tv_sec == 0 && run.tv_nsec < work)
            ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &run);
    }).join();
    QVERIFY(ProcessorTimes::now().ours - before.ours >= work);
}

void IndiAnswersTest::windowAnswers_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Loss>("loss");
    QTest::addColumn<bool>("hasVideo");
    const bool canHaveVideo = QFileInfo::exists(GSC_FOLDER "/indi_test_video");
    for (const char *name : {"quorvandel", "quorvandel-assistant"}) {
        for (const NamedLoss &one : losses)
            QTest::addRow("%s, %s", name, one.name) << name << one.loss << false;
        if (canHaveVideo)
            QTest::addRow("%s, video, network cut", name) << name << Loss::Cut << true;
    }
}

/// 100 milliseconds are what a person hardly notices. A call that waits for the server or the
/// network would take seconds.
void IndiAnswersTest::windowAnswers()
{
    QFETCH(QString, name);
    QFETCH(Loss, loss);
    QFETCH(bool, hasVideo);
    constexpr qint64 bound = 400; // milliseconds; the window's own work on a slow machine is less
    if (name != opened) {
        if (program.close)
            program.close();
        opened = name;
        name == "quorvandel" ? openWizard() : openAssistant();
    }
    if (hasVideo != isVideo)
        change(hasVideo);
    QVERIFY(pictureComes());
    Lateness lateness;
    QTest::qWait(300);
    const qint64 before = lateness.milliseconds();
    lateness.forget();
    camera.lose(loss, 7);
    lateness.skip();
    // Longer than a silence is borne; a killed driver is back at once, garbage does not end.
    QTest::qWait(loss == Loss::Stopped ? 8000 : loss == Loss::Renamed ? 3500 : 1500);
    const qint64 lost = lateness.milliseconds();
    lateness.forget();
    camera.restore(loss);
    lateness.skip();
    QVERIFY(pictureComes() && pictureComes() && pictureComes());
    const qint64 back = lateness.milliseconds();
    qInfo(
        "at most late: %lld ms while frames come, %lld ms while they are lost, %lld ms until they "
        "are back",
        before, lost, back);
    QVERIFY2(std::max(before, std::max(lost, back)) < bound, "the window does not answer");
}

void IndiAnswersTest::cleanupTestCase()
{
    if (program.close)
        program.close();
    QFile::remove(settingsFilePath());
}

QTEST_MAIN(IndiAnswersTest)
#include "tst_indianswers.moc"
