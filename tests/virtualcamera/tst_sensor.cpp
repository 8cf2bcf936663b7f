// SPDX-License-Identifier: MIT
// Does the sensor respond to light, exposure, gain and weather like a real camera?
#include <QtTest>

#include "tests/virtualcamera/skytest.h"

using namespace skytest;

class SensorTest : public QObject
{
    Q_OBJECT

private slots:
    void visibility_data();
    void visibility();
    void lightGrowsWithExposure();
    void lightGrowsWithGain();
    void magnitudeScale();
    void imageWidth_data();
    void imageWidth();
    void lightIsIntegratedOverPixels();
    void faintLightIsLeftOut_data();
    void faintLightIsLeftOut();
    void backgroundIsDarkGrey();
    void weather_data();
    void weather();
    void saturatesFlat();
};

void SensorTest::visibility_data()
{
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("gain");
    QTest::addColumn<bool>("shows"); // the peak is 3 sigma or more above the background
    QTest::newRow("V 8 at 500 ms, gain 50") << 8.0 << 0.5 << 50.0 << true;
    QTest::newRow("V 9 at 500 ms, gain 50") << 9.0 << 0.5 << 50.0 << true;
    QTest::newRow("V 11 at 500 ms, gain 50") << 11.0 << 0.5 << 50.0 << false;
    QTest::newRow("V 2 at 20 ms, gain 50") << 2.0 << 0.02 << 50.0 << true;
    QTest::newRow("V 4.3 at 20 ms, gain 50") << 4.3 << 0.02 << 50.0 << true;
    QTest::newRow("V 7.2 at 20 ms, gain 50") << 7.2 << 0.02 << 50.0 << false;
    QTest::newRow("V 9 at 500 ms, gain 1") << 9.0 << 0.5 << 1.0 << false;
    QTest::newRow("V 6.3 at 200 ms, gain 50") << 6.3 << 0.2 << 50.0 << true;
    QTest::newRow("V 7.2 at 200 ms, gain 50") << 7.2 << 0.2 << 50.0 << true;
}

void SensorTest::visibility()
{
    QFETCH(double, magnitude);
    QFETCH(double, seconds);
    QFETCH(double, gain);
    QFETCH(bool, shows);
    SkyState state = quietState();
    const int peak = oneStar(state, magnitude, seconds, gain).at(640, 480);
    const int dark = oneStar(state, magnitude, seconds, gain).at(10, 10);
    state.noise = true;
    const double sigma = deviation(render(state, {}, {seconds, gain, 1}));
    QCOMPARE(peak - dark >= 3.0 * sigma, shows);
}

void SensorTest::lightGrowsWithExposure()
{
    const SkyState state = darkState();
    const int dark = oneStar(state, 20.0, 0.1, 50.0).at(640, 480);
    const int once = oneStar(state, 7.0, 0.1, 50.0).at(640, 480) - dark;
    const int fourTimes = oneStar(state, 7.0, 0.4, 50.0).at(640, 480) - dark;
    QVERIFY(once > 10);
    QVERIFY(std::abs(fourTimes - 4 * once) <= 4); // rounding to whole values
}

void SensorTest::lightGrowsWithGain()
{
    QVERIFY(std::abs(valuesPerElectron(100.0) / valuesPerElectron(50.0) - 10.0) < 1e-9);
    const SkyState state = darkState();
    const int dark = oneStar(state, 20.0, 0.1, 50.0).at(640, 480);
    const int low = oneStar(state, 7.0, 0.1, 50.0).at(640, 480) - dark;
    const int high = oneStar(state, 7.0, 0.1, 70.0).at(640, 480) - dark;
    QVERIFY(std::abs(high - low * std::pow(10.0, 0.4)) <= 2.0);
}

void SensorTest::magnitudeScale()
{
    const SkyState state = quietState();
    QVERIFY(std::abs(starRate(state, 3.0) / starRate(state, 8.0) - 100.0) < 1e-9);
    QCOMPARE(starRate(state, 0.0), zeroMagnitudeRate);
}

void SensorTest::imageWidth_data()
{
    QTest::addColumn<double>("fwhm");
    QTest::addColumn<double>("seeing");
    QTest::addColumn<double>("expected");  // pixels, with the pixel's own 1/12 of variance
    QTest::addColumn<double>("magnitude"); // bright without saturating
    QTest::newRow("in focus") << 2.5 << 0.0 << 2.5 << 5.5;
    QTest::newRow("out of focus") << 8.0 << 0.0 << 8.0 << 3.0;
    QTest::newRow("seeing adds in squares") << 3.0 << 3.9 * 30.45 << std::hypot(3.0, 3.9) << 4.0;
}

void SensorTest::imageWidth()
{
    QFETCH(double, fwhm);
    QFETCH(double, seeing);
    QFETCH(double, expected);
    QFETCH(double, magnitude);
    SkyState state = darkState();
    state.fwhm = fwhm;
    state.seeing = seeing;
    const Frame frame = oneStar(state, magnitude, 0.15, 50.0);
    QVERIFY(frame.at(640, 480) > 100 && frame.at(640, 480) < 255);
    const int dark = frame.at(0, 0);
    double sum = 0.0, square = 0.0;
    for (int y = 440; y <= 520; ++y)
        for (int x = 600; x <= 680; ++x) {
            sum += frame.at(x, y) - dark;
            square += (frame.at(x, y) - dark) * (x - 640.0) * (x - 640.0);
        }
    const double sigma = std::sqrt(square / sum - 1.0 / 12.0);
    // Rounding to whole values cuts the wings.
    QVERIFY2(std::abs(sigma * 2.3548 - expected) < 0.03 * expected,
             qPrintable(QString::number(sigma * 2.3548)));
}

void SensorTest::lightIsIntegratedOverPixels()
{
    SkyState state = darkState();
    state.fwhm = 0.5;
    state.seeing = 0.0;
    // So narrow that nearly all light falls into one pixel, or half of it on either side of an
    // edge.
    const Frame inside = oneStar(state, 8.0, 0.5, 50.0);
    const Frame between = oneStar(state, 8.0, 0.5, 50.0, {640.5, 480.0});
    const int dark = inside.at(0, 0);
    const double all = zeroMagnitudeRate * 0.5 * std::pow(10.0, -3.2) * valuesPerElectron(50.0);
    QVERIFY(std::abs(inside.at(640, 480) - dark - std::min(all, 255.0 - dark)) < 0.07 * all);
    QCOMPARE(between.at(640, 480), between.at(641, 480));
    QVERIFY(std::abs(between.at(640, 480) - dark - std::min(all / 2.0, 255.0 - dark)) < 0.07 * all);
}

void SensorTest::faintLightIsLeftOut_data()
{
    QTest::addColumn<double>("peak"); // electrons in the middle pixel
    QTest::addColumn<int>("lit");     // pixels
    QTest::newRow("fainter than the faintest trace") << 0.019 << 1;
    // It falls to that at sigma * sqrt(2 ln(0.022 / 0.02)) = 1.5, and one pixel is added.
    QTest::newRow("brighter") << 0.022 << 7 * 7;
}

/// At a gain that shows much less: 0.02 electrons give 14.
void SensorTest::faintLightIsLeftOut()
{
    QFETCH(double, peak);
    QFETCH(int, lit);
    SkyState state = darkState();
    state.fwhm = 8.0;
    state.seeing = 0.0;
    const double sigma = imageSigma(state);
    const double electrons = peak * 2.0 * pi * sigma * sigma;
    const double magnitude = 0.0; // so bright that the sky stays dark
    const Frame frame = oneStar(state, magnitude, electrons / starRate(state, magnitude), 200.0);
    const int dark = frame.at(0, 0);
    QCOMPARE(int(std::count_if(frame.values.begin(), frame.values.end(),
                               [dark](int value) { return value > dark; })),
             lit);
}

void SensorTest::backgroundIsDarkGrey()
{
    SkyState state;
    for (const double seconds : {0.001, 0.02, 0.5})
        for (const double gain : {1.0, 50.0}) {
            const Frame frame = render(state, {}, {seconds, gain, 1});
            QVERIFY(mean(frame) > 6.0 && mean(frame) < 40.0);
            const auto zeros = std::count(frame.values.begin(), frame.values.end(), 0);
            QVERIFY(static_cast<double>(zeros) < 0.01 * static_cast<double>(frame.values.size()));
        }
}

void SensorTest::weather_data()
{
    QTest::addColumn<double>("clouds");
    QTest::addColumn<double>("moon");
    QTest::addColumn<double>("starFactor");
    QTest::newRow("clear") << 0.0 << 0.0 << 1.0;
    QTest::newRow("half clouded") << 0.5 << 0.0 << 0.5;
    QTest::newRow("overcast") << 1.0 << 0.0 << 0.0;
    QTest::newRow("full moon") << 0.0 << 1.0 << 1.0;
}

void SensorTest::weather()
{
    QFETCH(double, clouds);
    QFETCH(double, moon);
    QFETCH(double, starFactor);
    SkyState state = quietState();
    const double clearSky = backgroundRate(state);
    const double clearStar = starRate(state, 5.0);
    state.clouds = clouds;
    state.moon = moon;
    QVERIFY(std::abs(starRate(state, 5.0) - starFactor * clearStar) < 1e-9 * clearStar);
    // 19.5 against 17.0 magnitudes: the full moon's glow is ten times the dark sky's.
    const double skyFactor = (1.0 + moon * 10.0) * (1.0 - clouds);
    QVERIFY(std::abs(backgroundRate(state) - skyFactor * clearSky) < 1e-9 * clearSky * 11.0);
    const Frame frame = oneStar(state, 5.0, 0.5, 50.0);
    const double level =
        std::min(biasLevel + skyFactor * clearSky * 0.5 * valuesPerElectron(50.0), 255.0);
    QVERIFY(std::abs(frame.at(0, 0) - level) <= 0.5);
    QCOMPARE(frame.at(640, 480) > frame.at(0, 0), starFactor > 0.0);
}

void SensorTest::saturatesFlat()
{
    const Point place = {640.3, 480.2};
    const Frame polaris = oneStar(quietState(), 1.97, 0.5, 50.0, place);
    for (int y = 479; y <= 481; ++y)
        for (int x = 639; x <= 641; ++x)
            QCOMPARE(polaris.at(x, y), 255);
    // The flat core is symmetric about the star: its centre is still accurate to a fraction of a
    // pixel.
    QVERIFY(distance(centroid(polaris, place, 12), place) < 0.1);
}

QTEST_GUILESS_MAIN(SensorTest)
#include "tst_sensor.moc"
