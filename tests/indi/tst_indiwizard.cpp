// SPDX-License-Identifier: MIT
// Does a person align a mount with the first program's window on INDI's simulated camera, while
// INDI's simulated telescope turns in RA?
#include "app/stylesheet.h"
#include "core/settingsfile.h"
#include "resources/resources.h"
#include "tests/indi/simulatedmount.h"
#include "tests/support/patience.h"
#include "tests/support/sessionwindow.h"
#include "tools/tour/person.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <utility>

namespace
{
double apart(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}
} // namespace

/// How late the GUI thread gets to a timer: as late as to a key or the mouse.
class Lateness
{
public:
    Lateness()
    {
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout,
                         [this] { greatest = std::max(greatest, since.restart() - interval); });
        since.start();
        timer.start(interval);
    }
    /// Milliseconds, the greatest since the last call.
    qint64 take() { return std::exchange(greatest, 0); }

private:
    static constexpr int interval = 10; // milliseconds
    QTimer timer;
    QElapsedTimer since;
    qint64 greatest = 0;
};

class IndiWizardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void windowAloneAligns();
    void windowAnswersWhileTheServerIsLost();
    void cleanupTestCase();

private:
    const QTemporaryDir folder;
    std::unique_ptr<SimulatedMount> mount;
    std::unique_ptr<Knobs> knobs;
};

void IndiWizardTest::initTestCase()
{
    if (!SimulatedMount::isInstalled())
        QSKIP("indi-bin is not installed");
    initialiseResources();
    applyStyleSheet(*qApp, ":/qss/default.qss");
    const QString sky = folder.filePath("sky.ini");
    mount = std::make_unique<SimulatedMount>(sky, 40.0, 116.0);
    virtualsky::SkyState state = mount->sky();
    state.refraction = false; // the template's stars are not refracted
    state.boltAltitude = 0.8;
    state.boltAzimuth = -0.9;
    knobs = std::make_unique<Knobs>(sky.toStdString(), state);
    QVERIFY(mount->start());
    knobs->turnOtherMount = [this](double degrees) {
        const auto reached = mount->turnTo(degrees);
        if (!reached)
            throw Stuck("the telescope does not arrive");
        return *reached;
    };
    qputenv("QUORVANDEL_SKY", QFile::encodeName(sky));
    qputenv("QUORVANDEL_CAMERA",
            QStringLiteral("indi://127.0.0.1:%1/CCD Simulator").arg(mount->server.port).toUtf8());
}

void IndiWizardTest::windowAloneAligns()
{
    writeSettings(settingsFilePath(), Settings());
    SessionWindow window(nullptr, double(std::time(nullptr))); // the angles of this day
    window.resize(1280, 800);
    window.show();
    try {
        Person person(window, window.ownSession, *knobs, {}, 20261122);
        person.connectCamera();
        person.prepare();
        person.setExposure();
        person.confirmTemplate();
        person.findAxis();
        const QPointF axis = window.ownSession.alignmentPoints.savedAxisCenter.load();
        const double axisOff = apart(axis, knobs->axis());
        qInfo("axis off by %.2f pixels", axisOff);
        QVERIFY(axisOff < 1.0);
        person.placePoleStar();
        person.startMonitor();
        person.fineAdjust();
        const QPointF pole = window.ownSession.monitorPositions.poleCurrent.load();
        const double poleOff = apart(pole, knobs->pole());
        const double truth = knobs->poleError();
        qInfo("pole off by %.2f pixels; aligned to %.1f arcseconds", poleOff, truth);
        QVERIFY(poleOff < 1.0);
        person.finish();
        QVERIFY2(truth < virtualsky::pixelScale, qPrintable(QString::number(truth)));
    } catch (const std::exception &problem) {
        QFAIL(problem.what());
    }
    window.close();
}

/// 100 milliseconds are what a person hardly notices; a busy machine takes longer without any fault
/// of the program's, but a call that waits for the server would take seconds.
void IndiWizardTest::windowAnswersWhileTheServerIsLost()
{
    constexpr qint64 blocked = 1000; // milliseconds
    SessionWindow window;
    window.resize(1280, 800);
    window.show();
    auto &picture = *window.findChild<QLabel *>("label_showImg");
    const auto showsAnother = [&picture](qint64 than) {
        return picture.pixmap(Qt::ReturnByValue).cacheKey() != than;
    };
    const auto framesCome = [&] {
        const qint64 now = picture.pixmap(Qt::ReturnByValue).cacheKey();
        return QTest::qWaitFor([&] { return showsAnother(now); }, patience);
    };
    IndiServer &server = mount->server;
    const QStringList drivers = {"indi_simulator_ccd", "indi_simulator_telescope"};
    window.findChild<QAction *>("actionConnect")->trigger();
    QVERIFY(framesCome());
    Lateness lateness;
    const auto report = [&](const char *phase) {
        const qint64 late = lateness.take();
        qInfo("%s: the window is at most %lld ms late", phase, late);
        return late;
    };
    QTest::qWait(3000);
    QVERIFY(report("frames come") < blocked);
    server.end();
    QTest::qWait(5000);
    QVERIFY(report("server killed") < blocked);
    const auto phases = [&](const char *phase) { // while the test itself waits, nothing is measured
        QTest::qWait(50);
        lateness.take();
        const bool come = framesCome() && framesCome();
        return report(phase) < blocked && come;
    };
    QVERIFY(server.start(drivers));
    QVERIFY(phases("server back"));
    server.signal(SIGSTOP);
    QTest::qWait(10000); // longer than a silence is borne
    QVERIFY(report("server stopped") < blocked);
    server.signal(SIGCONT);
    QVERIFY(phases("server goes on"));
    window.close();
}

void IndiWizardTest::cleanupTestCase()
{
    QFile::remove(settingsFilePath());
}

QTEST_MAIN(IndiWizardTest)
#include "tst_indiwizard.moc"
