// SPDX-License-Identifier: MIT
// Does a person align a mount with the assistant's window on INDI's simulated camera, while INDI's
// simulated telescope turns in RA?
#include "assistantwindow/assistantresources.h"
#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/sessioninstrument.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"
#include "tests/indi/displacedsky.h"
#include "tests/indi/indisource.h"
#include "tests/indi/simulatedmount.h"
#include "tools/tour/assistanthands.h"
#include "virtualcamera/skyfile.h"

#include <QLineF>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

namespace
{
constexpr double latitude = 47.0, longitude = 8.0;
} // namespace

class IndiAssistantTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void telescopePointsWhereTheSkyFileSays();
    void windowAloneAligns();

private:
    const QTemporaryDir folder;
    std::unique_ptr<SimulatedMount> mount;
    std::unique_ptr<Knobs> knobs;
};

void IndiAssistantTest::initTestCase()
{
    if (!SimulatedMount::isInstalled())
        QSKIP("indi-bin is not installed");
    initialiseAssistantResources();
    const QString sky = folder.filePath("sky.ini");
    mount = std::make_unique<SimulatedMount>(sky, latitude, longitude);
    knobs = std::make_unique<Knobs>(sky.toStdString(), mount->sky());
    QVERIFY(mount->start());
    knobs->turnOtherMount = [this](double degrees) {
        const auto reached = mount->turnTo(degrees);
        if (!reached)
            throw std::runtime_error("the telescope does not arrive");
        return *reached;
    };
    qputenv("QUORVANDEL_SKY", QFile::encodeName(sky));
    qputenv("QUORVANDEL_CAMERA",
            QStringLiteral("indi://127.0.0.1:%1/CCD Simulator").arg(mount->server.port).toUtf8());
}

/// On an aligned mount the displaced stars are where an undisplaced sky has them: what the
/// telescope points at, of date, is in the middle of the picture at every RA.
void IndiAssistantTest::telescopePointsWhereTheSkyFileSays()
{
    virtualsky::SkyState sky = mount->sky();
    sky.boltAltitude = sky.boltAzimuth = 0.0;
    sky.refraction = false;
    const double now = double(std::time(nullptr));
    for (const double turned : {0.0, 55.0, 120.0}) {
        sky.raAngle = turned;
        const double ra = mount->homeRa() * astrometry::degree - turned * astrometry::degree +
                          astrometry::equationOfOrigins(now);
        const double dec = SimulatedMount::declination * astrometry::degree;
        const astrometry::Vector3 cirs = {std::cos(dec) * std::cos(ra),
                                          std::cos(dec) * std::sin(ra), std::sin(dec)};
        const auto pixel = virtualsky::PlaceInPicture(sky, now).ofCirs(cirs);
        QVERIFY(pixel);
        const double off =
            std::hypot(pixel->x - virtualsky::centreX, pixel->y - virtualsky::centreY);
        QVERIFY2(off < 0.5, qPrintable(QString::number(off)));
    }
}

void IndiAssistantTest::windowAloneAligns()
{
    knobs->edit() = mount->sky();
    knobs->edit().boltAltitude = 0.9;
    knobs->edit().boltAzimuth = -0.7;
    knobs->write();
    assistant::Settings settings;
    settings.site = astrometry::Site{latitude, longitude};
    assistantwindow::SessionInstrument instrument(settings);
    {
        assistantwindow::AssistantWindow window(instrument, settings, [](const auto &) {});
        window.resize(800, 480);
        window.show();
        AssistantHands::Options options;
        options.axisStep = 12.0;
        options.goalArcseconds = 10.0;
        AssistantHands hands(window, *knobs, options);
        hands.connectCamera();
        hands.turnAxis();
        const auto status = [&] { return instrument.latest().status; };
        knobs->turnRaAxisTo(42.0); // further turning improves the axis
        QTRY_VERIFY_WITH_TIMEOUT(status().axis.turnedDegrees > 40.0 && status().pole, 60000);
        const auto place = *status().axis.place;
        const double axisOff = QLineF({place.x, place.y}, knobs->axis()).length();
        const auto first = hands.number("label_altitudeError");
        QVERIFY(first);
        qInfo("axis off by %.2f pixels; altitude error %.1f, truly %.1f arcseconds", axisOff,
              *first, knobs->edit().boltAltitude * 3600.0);
        QVERIFY(axisOff < 1.0);
        try {
            hands.turnBolts();
        } catch (const std::exception &problem) {
            QFAIL(problem.what());
        }
        const double truth = knobs->poleError();
        const auto pole = *status().pole;
        const double poleOff = QLineF({pole.x, pole.y}, knobs->pole()).length();
        qInfo("pole off by %.2f pixels; aligned to %.1f arcseconds", poleOff, truth);
        QVERIFY(poleOff < 1.0);
        QVERIFY2(truth < virtualsky::pixelScale, qPrintable(QString::number(truth)));
    }
    QVERIFY(instrument.close(20000));
}

QTEST_MAIN(IndiAssistantTest)
#include "tst_indiassistant.moc"
