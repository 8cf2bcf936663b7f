// SPDX-License-Identifier: MIT
// Are noise, hot pixels, areas and channels of a frame as stated?
#include <QtTest>

#include "tests/virtualcamera/skytest.h"

using namespace skytest;

class SensorOutputTest : public QObject
{
    Q_OBJECT

private slots:
    void noiseIsAsStated_data();
    void noiseIsAsStated();
    void noiseRepeats();
    void hotPixelsStay();
    void fixedPictures_data();
    void fixedPictures();
    void areaIsACut();
    void threeChannels();
    void extremesStayDefined_data();
    void extremesStayDefined();
};

void SensorOutputTest::noiseIsAsStated_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("gain");
    QTest::addColumn<double>("moon");
    QTest::newRow("read noise alone") << 0.0001 << 50.0 << 0.0;
    QTest::newRow("read and shot noise") << 0.5 << 50.0 << 0.0;
    QTest::newRow("shot noise of the moon") << 0.5 << 50.0 << 1.0;
    QTest::newRow("high gain") << 0.5 << 80.0 << 0.0;
}

void SensorOutputTest::noiseIsAsStated()
{
    QFETCH(double, seconds);
    QFETCH(double, gain);
    QFETCH(double, moon);
    SkyState state = quietState();
    state.noise = true;
    state.moon = moon;
    const double scale = valuesPerElectron(gain);
    const double electrons = backgroundRate(state) * seconds;
    // Rounding to whole values adds 1/12.
    const double expected =
        std::sqrt(readNoise(gain) * readNoise(gain) + electrons * scale * scale + 1.0 / 12.0);
    const Frame frame = render(state, {}, {seconds, gain, 1});
    QVERIFY2(std::abs(deviation(frame) - expected) < 0.02 * expected,
             qPrintable(QStringLiteral("%1 %2").arg(deviation(frame)).arg(expected)));
    QVERIFY(std::abs(mean(frame) - (biasLevel + electrons * scale)) < 0.05);
}

void SensorOutputTest::noiseRepeats()
{
    SkyState state;
    const auto values = [&state](std::uint64_t number) {
        return render(state, {}, {0.2, 50.0, number}).values;
    };
    const auto first = values(1);
    QVERIFY(first == values(1));
    QVERIFY(first != values(2));
    state.seed = 2;
    QVERIFY(first != values(1));
}

void SensorOutputTest::hotPixelsStay()
{
    SkyState state = quietState();
    state.hotPixels = 12;
    const auto hot = [](const Frame &frame) {
        std::vector<std::size_t> places;
        for (std::size_t i = 0; i < frame.values.size(); ++i)
            if (frame.values[i] > frame.values[0] + 20)
                places.push_back(i);
        return places;
    };
    const auto first = hot(render(state, {}, {0.5, 50.0, 1}));
    QCOMPARE(first.size(), std::size_t{12});
    state.noise = true;
    state.boltAltitude = 3.0;
    QVERIFY(hot(render(state, {}, {0.5, 50.0, 9})) == first);
    state.noise = false;
    state.seed = 7;
    QVERIFY(hot(render(state, {}, {0.5, 50.0, 1})) != first);
    state.hotPixels = 0;
    QVERIFY(hot(render(state, {}, {0.5, 50.0, 1})).empty());
}

void SensorOutputTest::fixedPictures_data()
{
    QTest::addColumn<int>("picture");
    QTest::addColumn<int>("value");
    QTest::newRow("black") << int(Picture::Black) << 0;
    QTest::newRow("saturated") << int(Picture::Saturated) << 255;
}

void SensorOutputTest::fixedPictures()
{
    QFETCH(int, picture);
    QFETCH(int, value);
    for (const unsigned channels : {1u, 3u}) {
        SkyState state;
        state.picture = static_cast<Picture>(picture);
        state.channels = channels;
        const Frame frame = oneStar(state, 2.0, 0.5, 50.0);
        const auto same = std::count(frame.values.begin(), frame.values.end(), value);
        QCOMPARE(static_cast<std::size_t>(same), frame.values.size());
    }
}

void SensorOutputTest::areaIsACut()
{
    SkyState state = quietState();
    state.hotPixels = 200;
    const std::vector<ImagedStar> stars = {{{350.4, 260.7}, 4.0, 0.5}, {{299.0, 400.0}, 3.0, 0.5}};
    const Frame whole = render(state, stars, {0.5, 50.0, 1});
    const Frame cut = render(state, stars, {0.5, 50.0, 1}, {300, 200, 333, 301});
    for (int y = 0; y < 301; ++y)
        for (int x = 0; x < 333; ++x)
            QCOMPARE(cut.at(x, y), whole.at(x + 300, y + 200));
}

void SensorOutputTest::threeChannels()
{
    SkyState state = darkState();
    state.channels = 3;
    const Frame blue = oneStar(state, 6.0, 0.1, 50.0, middle, 0.0);
    const Frame red = oneStar(state, 6.0, 0.1, 50.0, middle, 1.6);
    QVERIFY(blue.at(640, 480, 0) > blue.at(640, 480, 1));
    QVERIFY(blue.at(640, 480, 1) > blue.at(640, 480, 2));
    QVERIFY(red.at(640, 480, 0) < red.at(640, 480, 1));
    QVERIFY(red.at(640, 480, 1) < red.at(640, 480, 2));
    state.channels = 1;
    QCOMPARE(oneStar(state, 6.0, 0.1, 50.0, middle, 1.6).at(640, 480), red.at(640, 480, 1));
    state.channels = 3;
    state.noise = true;
    const Frame noisy = oneStar(state, 6.0, 0.1, 50.0);
    int different = 0;
    for (int x = 0; x < 1000; ++x)
        different += noisy.at(x, 5, 0) != noisy.at(x, 5, 1) ? 1 : 0;
    QVERIFY(different > 300);
}

void SensorOutputTest::extremesStayDefined_data()
{
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("gain");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::newRow("brightest, longest, highest gain") << -30.0 << 600.0 << 200.0 << 640.0 << 480.0;
    QTest::newRow("faintest, shortest, lowest gain") << 40.0 << 1e-6 << 0.0 << 640.0 << 480.0;
    QTest::newRow("at the corner") << 2.0 << 0.5 << 50.0 << 0.0 << 0.0;
    QTest::newRow("just outside the other corner") << 2.0 << 0.5 << 50.0 << 1282.0 << 961.0;
    QTest::newRow("far outside") << 2.0 << 0.5 << 50.0 << -5000.0 << 9000.0;
}

void SensorOutputTest::extremesStayDefined()
{
    QFETCH(double, magnitude);
    QFETCH(double, seconds);
    QFETCH(double, gain);
    QFETCH(double, x);
    QFETCH(double, y);
    SkyState state;
    state.fwhm = 20.0;
    state.seeing = 120.0;
    state.hotPixels = 1000;
    const Frame frame = oneStar(state, magnitude, seconds, gain, {x, y});
    if (magnitude < -20.0)
        QCOMPARE(frame.at(640, 480), 255);
    else
        QVERIFY(mean(frame) >= 6.0 && mean(frame) < 40.0);
}

QTEST_GUILESS_MAIN(SensorOutputTest)
#include "tst_sensoroutput.moc"
