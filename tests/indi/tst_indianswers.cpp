// SPDX-License-Identifier: MIT
// How late do the windows of both programs answer while their camera by INDI is lost and comes
// back?
#include "app/stylesheet.h"
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
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <optional>
#include <utility>

// Q_INIT_RESOURCE must be used in the global namespace.
static void initialiseAssistantResources()
{
    Q_INIT_RESOURCE(assistantwindow);
}

namespace
{
/// How late the GUI thread gets to a timer: as late as to a key or the mouse. Without the time in
/// which other processes had the processor.
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
        queuedBefore = IndiSource::queuedFor();
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
        const qint64 queued = IndiSource::queuedFor();
        greatest = std::max(greatest, since.restart() - interval - (queued - queuedBefore));
        queuedBefore = queued;
    }

    static constexpr int interval = 5; // milliseconds
    QTimer timer;
    QElapsedTimer since;
    qint64 greatest = 0, queuedBefore = 0;
};

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
    void windowAnswers_data();
    void windowAnswers();
    void cleanupTestCase();

private:
    void openWizard();
    void openAssistant();
    bool pictureComes();

    const QTemporaryDir folder;
    LosableCamera camera;
    QString opened;
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
    const QString sky = folder.filePath("sky.ini"); // without a lens the simulated video is silent
    QVERIFY(virtualsky::writeAtomically(sky.toStdString(), "[camera]\nstream = false\n"));
    qputenv("QUORVANDEL_SKY", QFile::encodeName(sky));
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

bool IndiAnswersTest::pictureComes()
{
    const qint64 now = program.picture();
    return comesTrue([&] { return program.picture() != now; });
}

void IndiAnswersTest::windowAnswers_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Loss>("loss");
    for (const char *name : {"quorvandel", "quorvandel-assistant"})
        for (const NamedLoss &one : losses)
            QTest::addRow("%s, %s", name, one.name) << name << one.loss;
}

/// 100 milliseconds are what a person hardly notices. A call that waits for the server or the
/// network would take seconds.
void IndiAnswersTest::windowAnswers()
{
    QFETCH(QString, name);
    QFETCH(Loss, loss);
    constexpr qint64 bound = 400; // milliseconds; the window's own work on a slow machine is less
    if (name != opened) {
        if (program.close)
            program.close();
        opened = name;
        name == "quorvandel" ? openWizard() : openAssistant();
    }
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
