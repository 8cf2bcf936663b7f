// SPDX-License-Identifier: MIT
// Does INDI's simulated camera show the pole at the program's scale, whatever its sensor and lens?
#include <QtTest>
#include <cmath>
#include <ctime>

#include "astrometry/catalogue.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"
#include "tests/indi/indiserver.h"
#include "tests/indi/indisource.h"

using virtualsky::LensScale;
using virtualsky::Mirrored;

namespace
{
framesources::SourceSettings anyLens(bool stream, bool soften)
{
    framesources::SourceSettings settings;
    settings.scale.kind = LensScale::Kind::Auto;
    settings.mirrored = Mirrored::Auto;
    settings.stream = stream;
    settings.soften = soften;
    return settings;
}

recognition::Recognition recognised(const cv::Mat &frame)
{
    recognition::RecognitionOptions options;
    options.utcSeconds = double(std::time(nullptr));
    return recognition::recognise(recognition::extractStars(frame).stars, frame.cols, frame.rows,
                                  options);
}

double angle(const astrometry::CatalogueStar &a, const astrometry::CatalogueStar &b)
{
    const double degree = std::acos(-1.0) / 180.0;
    const double cosine = std::sin(a.decDegrees * degree) * std::sin(b.decDegrees * degree) +
                          std::cos(a.decDegrees * degree) * std::cos(b.decDegrees * degree) *
                              std::cos((a.raDegrees - b.raDegrees) * degree);
    return std::acos(cosine) / degree * 3600.0;
}

/// The greatest error, in pixels at 300 pixels from each other, of the distances between the pole
/// star and the stars some 200 to 400 pixels from it, against the template's scale.
double templateError(const recognition::Recognition &sky, const cv::Mat &frame)
{
    const auto stars = recognition::extractStars(frame).stars;
    const auto &catalogue = astrometry::catalogue();
    const astrometry::CatalogueStar &pole =
        astrometry::templateStar(false, astrometry::TemplateStar::B);
    const recognition::MatchedStar *centre = nullptr;
    for (const auto &match : sky.matched)
        if (&catalogue.first[match.catalogue] == &pole)
            centre = &match;
    if (!centre)
        return 1e9;
    std::vector<double> errors;
    for (const auto &match : sky.matched) {
        const double pixels = std::hypot(stars[match.detected].x - stars[centre->detected].x,
                                         stars[match.detected].y - stars[centre->detected].y);
        const double expected = angle(catalogue.first[match.catalogue], pole) / 30.45;
        if (expected > 200.0 && expected < 400.0)
            errors.push_back(std::abs(pixels - expected) * 300.0 / expected);
    }
    if (errors.size() < 5)
        return 1e9;
    return *std::max_element(errors.begin(), errors.end());
}
} // namespace

class IndiSensorsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void recognisedAtTheProgramsScale_data();
    void recognisedAtTheProgramsScale();
    void poleIsWhereTheDriverPutIt();
    void exposureAndGainReachTheDevice();
    void shorterExposureBeginsAtOnce();
    void streamComes();
    void videoEndsWithTheSource();

private:
    IndiServer server;
};

void IndiSensorsTest::initTestCase()
{
    if (!IndiServer::isInstalled())
        QSKIP("indi-bin is not installed");
    QVERIFY(server.start());
}

void IndiSensorsTest::recognisedAtTheProgramsScale_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("bayer");
    QTest::addColumn<double>("limit"); // of any star's error, pixels
    QTest::addColumn<bool>("soften");
    const auto row = [](const char *name, int width, int height, double scale, bool bayer,
                        double limit, bool soften = true) {
        QTest::newRow(name) << width << height << scale << bayer << limit << soften;
    };
    row("1280 x 960 at 30.45, stars of one pixel", 1280, 960, 30.45, false, 1.0);
    // The driver refuses sensors of fewer than 512 rows. It draws a star into a whole pixel, which
    // alone moves each of the two stars by up to half a pixel of twice the size.
    row("640 x 512 at 60, stars of one pixel", 640, 512, 60.0, false, 2.0);
    row("4144 x 2822 at 6", 4144, 2822, 6.0, false, 1.0);
    row("4144 x 2822 at 6, Bayer", 4144, 2822, 6.0, true, 1.0);
    row("2560 x 1920 at 15", 2560, 1920, 15.0, false, 1.0);
    row("1280 x 960 at 30.45, as a lens draws stars, not softened", 1280, 960, 30.45, false, 1.0,
        false);
}

void IndiSensorsTest::recognisedAtTheProgramsScale()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(double, scale);
    QFETCH(bool, bayer);
    QFETCH(double, limit);
    QFETCH(bool, soften);
    IndiServer lens; // one whose stars are no single pixels
    if (!soften) {
        lens.variables["GSC_SPREAD"] = "1";
        QVERIFY(lens.start());
    }
    const IndiServer &asked = soften ? server : lens;
    QVERIFY(asked.set({width, height, scale, bayer}));
    IndiSource source(asked.port, simulatedCamera, anyLens(false, soften));
    recognition::Recognition sky;
    cv::Mat frame;
    QElapsedTimer waiting; // the first frames may be older than the settings
    waiting.start();
    while (waiting.elapsed() < 60000) {
        frame = source.frame(60000);
        QVERIFY2(!frame.empty(), qPrintable(source.lines().join("\n")));
        sky = recognised(frame);
        if (sky.status == recognition::RecognitionStatus::Recognised &&
            std::abs(sky.scale - 30.45) < 0.1)
            break;
    }
    QVERIFY2(sky.status == recognition::RecognitionStatus::Recognised,
             qPrintable(source.lines().join("\n")));
    const double error = templateError(sky, frame);
    QVERIFY2(error < limit, qPrintable(QString("%1 at scale %2").arg(error).arg(sky.scale)));
    qInfo("the template is off by %.2f pixels", error);
    QVERIFY(!sky.mirrored);
    QVERIFY2(source.slowest < 100, qPrintable(QString::number(source.slowest)));
}

// The driver takes its declination as that of date: the pole of date is 0.7 degrees from the
// middle.
void IndiSensorsTest::poleIsWhereTheDriverPutIt()
{
    QVERIFY(server.set({}));
    framesources::SourceSettings settings;
    settings.stream = false;
    settings.soften = true;
    IndiSource source(server.port, simulatedCamera, settings);
    const double degree = std::acos(-1.0) / 180.0;
    const double expected = std::tan(0.7 * degree) / std::tan(30.45 / 3600.0 * degree);
    double found = 0.0;
    QElapsedTimer waiting; // the first frames may be older than the settings
    waiting.start();
    while (waiting.elapsed() < 60000 && std::abs(found - expected) >= 1.0) {
        const recognition::Recognition sky = recognised(source.frame());
        if (sky.status == recognition::RecognitionStatus::Recognised)
            found = std::hypot(sky.pole.x - 639.5, sky.pole.y - 479.5);
    }
    QVERIFY2(std::abs(found - expected) < 1.0,
             qPrintable(QString("%1 pixels, expected %2").arg(found).arg(expected)));
    qInfo("the pole is %.2f pixels from the middle, put at %.2f", found, expected);
}

void IndiSensorsTest::exposureAndGainReachTheDevice()
{
    QVERIFY(server.set({}));
    framesources::SourceSettings settings;
    settings.stream = false;
    IndiSource source(server.port, simulatedCamera, settings);
    source.exposure = 0.12;
    source.gain = 25.0;
    for (int i = 0; i < 2; ++i)
        QVERIFY(!source.frame().empty());
    const auto device = server.client();
    QVERIFY(device && IndiServer::waitFor(*device, "CCD_GAIN"));
    const auto gain = device->number("CCD_GAIN", "GAIN");
    QVERIFY(gain);
    QCOMPARE(gain->value, gain->least + (gain->most - gain->least) * 0.25);
}

void IndiSensorsTest::shorterExposureBeginsAtOnce()
{
    QVERIFY(server.set({}));
    framesources::SourceSettings settings;
    settings.stream = false;
    IndiSource source(server.port, simulatedCamera, settings);
    source.exposure = 0.1;
    QVERIFY2(!source.frame().empty(), qPrintable(source.lines().join("\n")));
    source.exposure = 60.0;
    QTRY_VERIFY_WITH_TIMEOUT(source.frame(1500).empty(), 10000);
    source.exposure = 0.1;
    QVERIFY2(!source.frame(5000).empty(), qPrintable(source.lines().join("\n")));
}

void IndiSensorsTest::streamComes()
{
    QVERIFY(server.set({}));
    IndiSource source(server.port);
    source.exposure = 0.05;
    for (int i = 0; i < 3; ++i)
        QVERIFY2(!source.frame().empty(), qPrintable(source.lines().join("\n")));
    const auto device = server.client();
    QVERIFY(device && IndiServer::waitFor(*device, "CCD_VIDEO_STREAM"));
    QVERIFY2(device->isOn("CCD_VIDEO_STREAM", "STREAM_ON").value_or(false),
             qPrintable(source.lines().join("\n")));
    source.source->pause();
    QTRY_VERIFY_WITH_TIMEOUT((device->waitForNews(std::chrono::milliseconds(50)),
                              device->isOn("CCD_VIDEO_STREAM", "STREAM_OFF").value_or(false)),
                             10000);
}

void IndiSensorsTest::videoEndsWithTheSource()
{
    QVERIFY(server.set({}));
    IndiSource source(server.port);
    source.exposure = 0.05;
    QVERIFY2(!source.frame().empty(), qPrintable(source.lines().join("\n")));
    const auto device = server.client();
    const auto isOn = [&](bool wanted) {
        device->waitForNews(std::chrono::milliseconds(50));
        return device->isOn("CCD_VIDEO_STREAM", "STREAM_ON").value_or(!wanted) == wanted;
    };
    QVERIFY(device);
    QTRY_VERIFY_WITH_TIMEOUT(isOn(true), 20000);
    source.source.reset();
    QTRY_VERIFY_WITH_TIMEOUT(isOn(false), 20000);
}

QTEST_GUILESS_MAIN(IndiSensorsTest)
#include "tst_indisensors.moc"
