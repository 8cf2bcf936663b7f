// SPDX-License-Identifier: MIT
// Is every picture labelled, and does the label not disturb the search for stars?
#include "tests/virtualcamera/skytest.h"

#include "geometry/stardetection.h"
#include "virtualcamera/label.h"
#include "virtualcamera/skysource.h"

#include <QTemporaryDir>
#include <QtTest>
#include <fstream>
#include <opencv2/core.hpp>

namespace
{
using namespace skytest;

/// A flat frame with its label.
std::vector<std::uint8_t> labelled(int width, int height, unsigned channels, std::uint8_t level)
{
    std::vector<std::uint8_t> frame(std::size_t(width) * std::size_t(height) * channels, level);
    drawLabel(width, height, channels, frame.data());
    return frame;
}

/// How the label changes a flat frame, as rows of '#' and '.'.
QStringList rowsOf(const std::vector<std::uint8_t> &frame, int width, unsigned channels, int level)
{
    QStringList rows;
    const auto bytes = std::size_t(width) * channels;
    for (std::size_t start = 0; start < frame.size(); start += bytes) {
        QString row;
        for (std::size_t i = start; i < start + bytes; i += channels) {
            const bool all = std::all_of(&frame[i], &frame[i] + channels,
                                         [&](int value) { return value == frame[i]; });
            row += !all ? '?' : frame[i] == level ? '.' : '#';
        }
        rows.append(row);
    }
    return rows;
}
} // namespace

class LabelTest : public QObject
{
    Q_OBJECT

private slots:
    void pixels_data();
    void pixels();
    void everyPictureHasIt_data();
    void everyPictureHasIt();
    void noStarIsFoundInIt_data();
    void noStarIsFoundInIt();
};

void LabelTest::pixels_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<uint>("channels");
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("fits");
    QTest::newRow("whole sensor, grey") << 1280 << 960 << 1U << 10 << true;
    QTest::newRow("whole sensor, colour") << 1280 << 960 << 3U << 10 << true;
    QTest::newRow("bright sky") << 1280 << 960 << 1U << 200 << true;
    QTest::newRow("saturated") << 1280 << 960 << 3U << 255 << true;
    QTest::newRow("region") << 321 << 77 << 3U << 0 << true;
    QTest::newRow("smallest") << 86 << 19 << 1U << 10 << true;
    QTest::newRow("too narrow") << 85 << 960 << 1U << 10 << false;
    QTest::newRow("too low") << 1280 << 18 << 3U << 10 << false;
    QTest::newRow("one pixel") << 1 << 1 << 3U << 10 << false;
}

void LabelTest::pixels()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(uint, channels);
    QFETCH(int, level);
    QFETCH(bool, fits);
    const std::vector<std::uint8_t> frame = labelled(width, height, channels, std::uint8_t(level));
    QStringList expected;
    for (int y = 0; y < height; ++y)
        expected.append(QString(width, '.'));
    if (fits)
        for (std::size_t y = 0; y < labelPicture.size(); ++y) {
            const std::string_view row = labelPicture[y];
            expected[height - 16 + int(y)].replace(
                8, int(row.size()), QString::fromLatin1(row.data(), int(row.size())));
        }
    QCOMPARE(rowsOf(frame, width, channels, level), expected);
    for (const std::uint8_t value : frame)
        QVERIFY(value == level || std::abs(value - level) == 90);
}

void LabelTest::everyPictureHasIt_data()
{
    QTest::addColumn<QByteArray>("sky");
    QTest::addColumn<bool>("has");
    QTest::newRow("by default") << QByteArray("[camera]\nroll = 0\n") << true;
    QTest::newRow("on") << QByteArray("[camera]\nlabel = true\n") << true;
    QTest::newRow("off") << QByteArray("[camera]\nlabel = false\n") << false;
    QTest::newRow("colour") << QByteArray("[camera]\nchannels = 3\n") << true;
    QTest::newRow("black") << QByteArray("[faults]\npicture = black\n") << true;
    QTest::newRow("saturated") << QByteArray("[faults]\npicture = saturated\n") << true;
}

/// The same frame with and without the label differs by the label alone.
void LabelTest::everyPictureHasIt()
{
    QFETCH(QByteArray, sky);
    QFETCH(bool, has);
    const QTemporaryDir folder;
    const std::string path = (folder.path() + "/sky.ini").toStdString();
    const auto frameOf = [&path](const QByteArray &text) {
        std::ofstream(path, std::ios::binary)
            << (text + "[time]\ndate = 2024-05-23T12:00:00Z\nrunning = false\n").toStdString();
        SkySource source(path, [](const std::string &fault) { qFatal("%s", fault.c_str()); });
        std::vector<std::uint8_t> frame(3 * 640 * 480);
        const unsigned channels =
            source.frame({{100, 200, 640, 480}, {0.5, 50.0, 1}}, frame.data());
        frame.resize(channels * 640 * 480);
        return std::pair(frame, channels);
    };
    const bool names = sky.contains("[camera]\n");
    const QByteArray bare = sky.contains("label") ? sky.left(sky.indexOf("label")) : sky;
    auto [plain, channels] = frameOf(names ? QByteArray(bare).append("label = false\n")
                                           : bare + "[camera]\nlabel = false\n");
    const auto shown = frameOf(sky).first;
    QCOMPARE(shown != plain, has);
    if (has)
        drawLabel(640, 480, channels, plain.data());
    QVERIFY(shown == plain);
}

void LabelTest::noStarIsFoundInIt_data()
{
    QTest::addColumn<double>("magnitude");
    QTest::addColumn<double>("x");
    for (const double x : {60.0, 100.0})
        for (const double magnitude : {6.0, 9.0, 20.0})
            QTest::addRow("star of %g magnitudes in column %g", magnitude, x) << magnitude << x;
}

/// Every click near the label has the same result as without it: the star nearby, or nothing.
void LabelTest::noStarIsFoundInIt()
{
    QFETCH(double, magnitude);
    QFETCH(double, x);
    for (const unsigned channels : {1U, 3U}) {
        SkyState state = quietState();
        state.channels = channels;
        Frame plain = oneStar(state, magnitude, 0.5, 50.0, {x, 928.0});
        std::vector<std::uint8_t> shown = plain.values;
        drawLabel(1280, 960, channels, shown.data());
        QVERIFY(shown != plain.values);
        const cv::Mat without(960, 1280, CV_8UC(int(channels)), plain.values.data());
        const cv::Mat with(960, 1280, CV_8UC(int(channels)), shown.data());
        int picked = 0;
        for (int clickY = 915; clickY < 960; ++clickY)
            for (int clickX = 20; clickX < 110; clickX += 3) {
                double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
                const int status = GetPreciseStarPos(&without, clickX, clickY, x1, y1);
                QCOMPARE(GetPreciseStarPos(&with, clickX, clickY, x2, y2), status);
                QCOMPARE(x2, x1);
                QCOMPARE(y2, y1);
                QCOMPARE(status == 0, clickY <= 940);
                picked += status == 0 ? 1 : 0;
            }
        QVERIFY(picked > 0);
    }
}

QTEST_GUILESS_MAIN(LabelTest)
#include "tst_label.moc"
