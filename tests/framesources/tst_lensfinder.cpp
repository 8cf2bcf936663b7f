// SPDX-License-Identifier: MIT
// Is a lens' scale found by the stars of its frames, and left alone where the settings give it?
#include <QtTest>
#include <opencv2/imgproc.hpp>

#include "framesources/lensfinder.h"
#include "framesources/settings.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"

using framesources::LensFinder;
using framesources::NativeFrame;
using virtualsky::LensScale;
using virtualsky::Mirrored;

namespace
{
/// The virtual sky's frame, as a camera with larger or smaller pixels sees it.
NativeFrame skyFrame(double factor, bool mirrored, double fwhm = 2.5)
{
    virtualsky::SkyState state;
    state.date = 1795204800.0;
    state.fwhm = fwhm;
    virtualsky::Scene scene;
    virtualsky::Sensor sensor;
    cv::Mat picture(960, 1280, CV_8UC1);
    sensor.render(state, scene.starsAt(state, *state.date), {}, {0.5, 60.0, 1}, picture.data);
    NativeFrame frame;
    cv::resize(picture, frame.pixels, cv::Size(), factor, factor,
               factor < 1.0 ? cv::INTER_AREA : cv::INTER_CUBIC);
    if (mirrored)
        cv::flip(frame.pixels, frame.pixels, 1);
    frame.sensor = frame.pixels.size();
    frame.date = state.date;
    return frame;
}

framesources::SourceSettings settingsOf(LensScale::Kind kind, Mirrored mirrored)
{
    framesources::SourceSettings settings;
    settings.scale.kind = kind;
    settings.scale.arcseconds = 12.5;
    settings.mirrored = mirrored;
    return settings;
}
} // namespace

class LensFinderTest : public QObject
{
    Q_OBJECT

private slots:
    void found_data();
    void found();
    void givenIsUsed();
    void nativeStays();
    void onlyWhatIsLeftOpen_data();
    void onlyWhatIsLeftOpen();
    void binnedFramesOfOneSensor();
    void unknownSkyIsLeftAlone();
    void narrowStarsAreSoftened_data();
    void narrowStarsAreSoftened();
};

void LensFinderTest::found_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<bool>("mirrored");
    for (const double factor : {0.5, 1.0, 1.6})
        for (const bool mirrored : {false, true})
            QTest::newRow(qPrintable(QString("%1 %2").arg(factor).arg(mirrored)))
                << factor << mirrored;
}

void LensFinderTest::found()
{
    QFETCH(double, factor);
    QFETCH(bool, mirrored);
    QStringList lines;
    LensFinder finder(settingsOf(LensScale::Kind::Auto, Mirrored::Auto),
                      [&](const std::string &line) { lines << QString::fromStdString(line); });
    QVERIFY(finder.isSearching());
    const framesources::Lens lens = finder.lensFor(skyFrame(factor, mirrored));
    QVERIFY2(std::abs(lens.scale - 30.45 / factor) < 0.002 * lens.scale,
             qPrintable(QString::number(lens.scale)));
    QCOMPARE(lens.mirrored, mirrored);
    QVERIFY(!finder.isSearching());
    QCOMPARE(lines.size(), 1);
    // A frame without stars changes nothing.
    NativeFrame dark = skyFrame(factor, false);
    dark.pixels = cv::Mat(dark.pixels.size(), CV_8UC1, cv::Scalar(0));
    QCOMPARE(finder.lensFor(dark).scale, lens.scale);
}

void LensFinderTest::narrowStarsAreSoftened_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<double>("fwhm"); // pixels before the frame is resampled
    QTest::addColumn<bool>("soften");
    QTest::newRow("as wide as usual") << 1.0 << 2.5 << false;
    QTest::newRow("of one pixel") << 1.0 << 0.5 << true;
    QTest::newRow("wide, averaged to less than a pixel") << 2.0 << 0.5 << true;
}

void LensFinderTest::narrowStarsAreSoftened()
{
    QFETCH(double, factor);
    QFETCH(double, fwhm);
    LensFinder finder(settingsOf(LensScale::Kind::Auto, Mirrored::Auto), [](const auto &) {});
    const framesources::Lens lens = finder.lensFor(skyFrame(factor, false, fwhm));
    QVERIFY(!finder.isSearching());
    QTEST(lens.soften, "soften");
    QVERIFY(std::abs(lens.scale * factor - 30.45) < 0.1);
}

void LensFinderTest::givenIsUsed()
{
    LensFinder finder(settingsOf(LensScale::Kind::Given, Mirrored::True),
                      [](const std::string &) {});
    const framesources::Lens lens = finder.lensFor(skyFrame(1.0, false));
    QCOMPARE(lens.scale, 12.5);
    QCOMPARE(lens.mirrored, true);
    QVERIFY(!finder.isSearching());
}

void LensFinderTest::nativeStays()
{
    LensFinder finder(settingsOf(LensScale::Kind::Native, Mirrored::False),
                      [](const std::string &) {});
    const framesources::Lens lens = finder.lensFor(skyFrame(0.5, true));
    QCOMPARE(lens.scale, 0.0);
    QCOMPARE(lens.mirrored, false);
}

/// A frame of 60.9" a pixel that mirrors, and settings that give a part of it, right or wrong.
void LensFinderTest::onlyWhatIsLeftOpen_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("mirrored");
    QTest::addColumn<double>("scale"); // expected
    QTest::addColumn<bool>("isMirrored");
    using Kind = LensScale::Kind;
    const auto row = [](const char *name, Kind kind, Mirrored mirrored, double scale,
                        bool isMirrored) {
        QTest::newRow(name) << int(kind) << int(mirrored) << scale << isMirrored;
    };
    row("native, auto", Kind::Native, Mirrored::Auto, 0.0, true);
    row("native, true", Kind::Native, Mirrored::True, 0.0, true);
    row("native, false", Kind::Native, Mirrored::False, 0.0, false);
    row("given, auto", Kind::Given, Mirrored::Auto, 12.5, true);
    row("given, true", Kind::Given, Mirrored::True, 12.5, true);
    row("given, false", Kind::Given, Mirrored::False, 12.5, false);
    row("auto, auto", Kind::Auto, Mirrored::Auto, 60.9, true);
    row("auto, true", Kind::Auto, Mirrored::True, 60.9, true);
    row("auto, false", Kind::Auto, Mirrored::False, 60.9, false);
}

void LensFinderTest::onlyWhatIsLeftOpen()
{
    QFETCH(int, kind);
    QFETCH(int, mirrored);
    QFETCH(double, scale);
    QFETCH(bool, isMirrored);
    LensFinder finder(settingsOf(LensScale::Kind(kind), Mirrored(mirrored)),
                      [](const std::string &) {});
    QCOMPARE(finder.isSearching(), LensScale::Kind(kind) == LensScale::Kind::Auto ||
                                       Mirrored(mirrored) == Mirrored::Auto);
    const framesources::Lens lens = finder.lensFor(skyFrame(0.5, true));
    QVERIFY2(std::abs(lens.scale - scale) <= 0.002 * scale,
             qPrintable(QString::number(lens.scale)));
    QCOMPARE(lens.mirrored, isMirrored);
    QVERIFY(!finder.isSearching());
}

void LensFinderTest::binnedFramesOfOneSensor()
{
    LensFinder finder(settingsOf(LensScale::Kind::Auto, Mirrored::False),
                      [](const std::string &) {});
    NativeFrame frame = skyFrame(0.5, false);
    frame.binning = 2;
    frame.sensor = frame.pixels.size() * 2;
    const framesources::Lens binned = finder.lensFor(frame);
    QVERIFY(std::abs(binned.scale - 60.9) < 0.1);
    QVERIFY(std::abs(finder.sensorScale() - 30.45) < 0.05);
    frame.binning = 1; // the middle of the sensor, unbinned
    frame.pixels = cv::Mat(400, 500, CV_8UC1, cv::Scalar(0));
    QVERIFY(std::abs(finder.lensFor(frame).scale - 30.45) < 0.05);
}

void LensFinderTest::unknownSkyIsLeftAlone()
{
    NativeFrame frame;
    frame.pixels = cv::Mat(480, 640, CV_8UC1, cv::Scalar(10));
    frame.sensor = frame.pixels.size();
    LensFinder finder(settingsOf(LensScale::Kind::Auto, Mirrored::Auto),
                      [](const std::string &) {});
    QCOMPARE(finder.lensFor(frame).scale, 0.0);
    QVERIFY(finder.isSearching());
}

QTEST_GUILESS_MAIN(LensFinderTest)
#include "tst_lensfinder.moc"
