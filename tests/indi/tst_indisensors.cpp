// SPDX-License-Identifier: MIT
// Does INDI's simulated camera show the pole at the program's scale, whatever its sensor and lens?
#include <QtTest>
#include <cmath>
#include <complex>
#include <ctime>
#include <numeric>

#include "astrometry/catalogue.h"
#include "astrometry/places.h"
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

using Complex = std::complex<double>;

/// Where a lens at the template's scale would show stars, in pixels right and down of the frame's
/// centre, but for a rotation. The driver draws the places of J2000: without proper motion.
std::vector<Complex> templateOf(std::vector<astrometry::CatalogueStar> stars,
                                const recognition::Recognition &sky, const cv::Mat &frame)
{
    for (astrometry::CatalogueStar &star : stars)
        star.pmRaCosDec = star.pmDec = star.parallax = 0.0;
    const auto places =
        astrometry::apparentPlaces(stars.data(), stars.data() + stars.size(), sky.utcSeconds);
    const astrometry::Vector3 forward =
        sky.mapping.skyOf({(frame.cols - 1) / 2.0, (frame.rows - 1) / 2.0});
    const astrometry::Vector3 aside = cross({1.0, 0.0, 0.0}, forward);
    const astrometry::Vector3 right = scaled(aside, 1.0 / length(aside));
    const astrometry::Vector3 down = cross(forward, right);
    std::vector<Complex> shown;
    for (const astrometry::Vector3 &place : places) {
        const double pixel = dot(place, forward) * std::tan(30.45 * astrometry::arcsecond);
        shown.emplace_back(dot(place, right) / pixel, dot(place, down) / pixel);
    }
    return shown;
}

Complex meanOf(const std::vector<Complex> &places)
{
    return std::accumulate(places.begin(), places.end(), Complex()) / double(places.size());
}

/// The greatest error, in pixels, of the stars 200 to 400 pixels from the pole star against a
/// template of the sky that is shifted and turned to fit them.
double templateError(const recognition::Recognition &sky, const cv::Mat &frame)
{
    const auto stars = recognition::extractStars(frame).stars;
    const auto &pole = astrometry::templateStar(false, astrometry::TemplateStar::B);
    std::vector<astrometry::CatalogueStar> matched = {pole};
    for (const auto &match : sky.matched)
        matched.push_back(astrometry::catalogue().first[match.catalogue]);
    const std::vector<Complex> places = templateOf(matched, sky, frame);
    std::vector<Complex> seen, wanted;
    for (std::size_t i = 0; i < sky.matched.size(); ++i) {
        const Complex place = places[i + 1];
        const double distance = std::abs(place - places.front());
        if (distance < 200.0 || distance > 400.0)
            continue;
        const recognition::DetectedStar &star = stars[sky.matched[i].detected];
        seen.emplace_back(star.x, star.y);
        wanted.push_back(place);
    }
    if (seen.size() < 5)
        return 1e9;
    const Complex seenMiddle = meanOf(seen), wantedMiddle = meanOf(wanted);
    Complex turn;
    for (std::size_t i = 0; i < seen.size(); ++i)
        turn += (seen[i] - seenMiddle) * std::conj(wanted[i] - wantedMiddle);
    turn /= std::abs(turn);
    double greatest = 0.0;
    for (std::size_t i = 0; i < seen.size(); ++i)
        greatest =
            std::max(greatest, std::abs(seen[i] - seenMiddle - turn * (wanted[i] - wantedMiddle)));
    return greatest;
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
    const QTemporaryDir links;
    IndiServer server;
    IndiServer lens; ///< its stars are no single pixels
};

void IndiSensorsTest::initTestCase()
{
    if (!IndiServer::isInstalled())
        QSKIP("indi-bin is not installed");
    QVERIFY(server.start());
    QVERIFY(server.listensOnLoopbackAlone());
    lens.variables["GSC_SPREAD"] = "1";
    lens.folder = links.filePath("a checkout with blanks");
    QVERIFY(QFile::link(GSC_FOLDER, lens.folder));
    QVERIFY(lens.start());
    QVERIFY(lens.listensOnLoopbackAlone());
}

void IndiSensorsTest::recognisedAtTheProgramsScale_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("bayer");
    QTest::addColumn<double>("exposure"); // seconds; a fine scale has more noise
    QTest::addColumn<bool>("single");     // pixels are stars: these are softened
    QTest::newRow("1280 x 960 at 30.45, stars of one pixel")
        << 1280 << 960 << 30.45 << false << 0.3 << true;
    QTest::newRow("4144 x 2822 at 6") << 4144 << 2822 << 6.0 << false << 1.0 << true;
    QTest::newRow("4144 x 2822 at 6, Bayer") << 4144 << 2822 << 6.0 << true << 1.0 << true;
    QTest::newRow("2560 x 1920 at 15") << 2560 << 1920 << 15.0 << false << 0.3 << true;
    QTest::newRow("1280 x 960 at 30.45, as a lens draws stars")
        << 1280 << 960 << 30.45 << false << 0.3 << false;
    // The driver refuses sensors of fewer than 512 rows. Stars of one pixel would be off by up to a
    // whole pixel of the template's scale by themselves.
    QTest::newRow("640 x 512 at 60, as a lens draws stars")
        << 640 << 512 << 60.0 << false << 0.3 << false;
}

void IndiSensorsTest::recognisedAtTheProgramsScale()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(double, scale);
    QFETCH(bool, bayer);
    QFETCH(double, exposure);
    QFETCH(bool, single);
    const IndiServer &asked = single ? server : lens;
    QVERIFY(asked.set({width, height, scale, bayer}));
    IndiSource source(asked.port, simulatedCamera, anyLens(false, single));
    source.exposure = exposure;
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
    QVERIFY2(error < 1.0, qPrintable(QString("%1 at scale %2").arg(error).arg(sky.scale)));
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
