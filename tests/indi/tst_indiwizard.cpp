// SPDX-License-Identifier: MIT
// Does a person align a mount with the first program's window on INDI's simulated camera, while
// INDI's simulated telescope turns in RA?
#include "app/stylesheet.h"
#include "core/settingsfile.h"
#include "resources/resources.h"
#include "tests/indi/simulatedmount.h"
#include "tests/support/sessionwindow.h"
#include "tools/tour/person.h"

#include <QApplication>
#include <QLineF>
#include <QTemporaryDir>
#include <QtTest>

class IndiWizardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void windowAloneAligns();
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
        const double axisOff = QLineF(axis, knobs->axis()).length();
        qInfo("axis off by %.2f pixels", axisOff);
        QVERIFY(axisOff < 1.0);
        person.placePoleStar();
        person.startMonitor();
        person.fineAdjust();
        const QPointF pole = window.ownSession.monitorPositions.poleCurrent.load();
        const double poleOff = QLineF(pole, knobs->pole()).length();
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

void IndiWizardTest::cleanupTestCase()
{
    QFile::remove(settingsFilePath());
}

QTEST_MAIN(IndiWizardTest)
#include "tst_indiwizard.moc"
