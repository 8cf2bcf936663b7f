// SPDX-License-Identifier: MIT
// Does the extraction take frames of every kind, size and content, and say what is wrong with them?
#include "foundstars.h"
#include "recognition/extraction.h"

#include <QTest>
#include <cmath>
#include <opencv2/imgproc.hpp>
#include <random>

using namespace recognition;

Q_DECLARE_METATYPE(cv::Mat)

namespace
{
constexpr double sigma = 1.1; // pixels

cv::Mat1w noisySky(int width, int height, unsigned seed)
{
    cv::Mat1w frame(height, width);
    cv::RNG random(seed);
    random.fill(frame, cv::RNG::NORMAL, 2000.0, 50.0);
    return frame;
}

void addStar(cv::Mat1w &frame, double x, double y, double peak)
{
    const cv::Rect around =
        cv::Rect(int(x) - 8, int(y) - 8, 17, 17) & cv::Rect(0, 0, frame.cols, frame.rows);
    for (int j = around.y; j < around.br().y; ++j)
        for (int i = around.x; i < around.br().x; ++i)
            frame(j, i) = cv::saturate_cast<std::uint16_t>(
                frame(j, i) +
                peak * std::exp(-(std::pow(i - x, 2) + std::pow(j - y, 2)) / (2 * sigma * sigma)));
}

/// A regular field of stars, none nearer to an edge than 15 pixels.
cv::Mat1w starField(int width, int height, int apart = 40)
{
    cv::Mat1w frame = noisySky(width, height, 7);
    for (int y = 20; y < height - 15; y += apart)
        for (int x = 20; x < width - 15; x += apart)
            addStar(frame, x + 0.01 * (y % 37), y + 0.02 * (x % 23),
                    3000.0 + 10.0 * std::min(x, 1500));
    return frame;
}

} // namespace

class ExtractionFramesTest : public QObject
{
    Q_OBJECT

private slots:
    void framesThatCannotBeUsed_data();
    void framesThatCannotBeUsed();
    void emptyPictures_data();
    void emptyPictures();
    void saturatedPartIsNoBorder();
    void brightSkyKeepsItsStars();
    void sizes_data();
    void sizes();
    void paddedRowsMakeNoDifference();
    void channelsMakeNoDifference();
    void noMoreStarsThanWanted();
    void starsAtTheEdgeAreLeftOut();
    void hotPixelsAreNoStars();
    void bordersMakeNoStars_data();
    void bordersMakeNoStars();
    void measuringNeedsAStar_data();
    void measuringNeedsAStar();
    void measuringBeginsInsideTheFrame_data();
    void measuringBeginsInsideTheFrame();
};

void ExtractionFramesTest::framesThatCannotBeUsed_data()
{
    QTest::addColumn<cv::Mat>("frame");
    QTest::addColumn<ExtractionStatus>("status");
    const auto bad = ExtractionStatus::BadFrame;
    QTest::newRow("empty") << cv::Mat() << bad;
    QTest::newRow("no rows") << cv::Mat(0, 100, CV_8UC1) << bad;
    QTest::newRow("float") << cv::Mat(100, 100, CV_32FC1, cv::Scalar(1)) << bad;
    QTest::newRow("signed") << cv::Mat(100, 100, CV_16SC1, cv::Scalar(1)) << bad;
    QTest::newRow("two channels") << cv::Mat(100, 100, CV_8UC2, cv::Scalar(1)) << bad;
    QTest::newRow("four channels") << cv::Mat(100, 100, CV_8UC4, cv::Scalar(1)) << bad;
    QTest::newRow("narrow") << cv::Mat(1000, 31, CV_8UC1, cv::Scalar(1)) << bad;
    QTest::newRow("low") << cv::Mat(31, 1000, CV_8UC1, cv::Scalar(1)) << bad;
    const int cube[] = {40, 40, 40};
    QTest::newRow("three dimensions") << cv::Mat(3, cube, CV_8UC1, cv::Scalar(1)) << bad;
    QTest::newRow("25 megapixels")
        << cv::Mat(5000, 5000, CV_8UC1, cv::Scalar(1)) << ExtractionStatus::TooLarge;
}

void ExtractionFramesTest::framesThatCannotBeUsed()
{
    QFETCH(cv::Mat, frame);
    QFETCH(ExtractionStatus, status);
    const Extraction found = extractStars(frame);
    QCOMPARE(found.status, status);
    QVERIFY(found.stars.empty());
    QVERIFY(!reasonOf(found).empty());
    QVERIFY(!measureStar(frame, 15, 15, 8));
}

void ExtractionFramesTest::emptyPictures_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("noise");
    QTest::addColumn<ExtractionStatus>("status");
    QTest::newRow("black") << CV_8UC1 << 0 << 0 << ExtractionStatus::Black;
    QTest::newRow("black, 16 bits") << CV_16UC1 << 0 << 0 << ExtractionStatus::Black;
    QTest::newRow("bias alone") << CV_8UC3 << 8 << 0 << ExtractionStatus::Black;
    QTest::newRow("white") << CV_8UC1 << 255 << 0 << ExtractionStatus::SaturatedSky;
    QTest::newRow("white, 16 bits") << CV_16UC3 << 65535 << 0 << ExtractionStatus::SaturatedSky;
    QTest::newRow("nearly white") << CV_8UC1 << 245 << 4 << ExtractionStatus::SaturatedSky;
    QTest::newRow("grey noise") << CV_8UC1 << 90 << 6 << ExtractionStatus::TooFewStars;
    QTest::newRow("noise cut off at 0") << CV_8UC1 << 0 << 6 << ExtractionStatus::TooFewStars;
}

void ExtractionFramesTest::emptyPictures()
{
    QFETCH(int, type);
    QFETCH(int, value);
    QFETCH(int, noise);
    QFETCH(ExtractionStatus, status);
    cv::Mat frame(480, 640, type);
    cv::RNG(3).fill(frame, cv::RNG::NORMAL, cv::Scalar::all(value), cv::Scalar::all(noise));
    const Extraction found = extractStars(frame);
    QCOMPARE(found.status, status);
    QVERIFY(!reasonOf(found).empty());
    QVERIFY(found.stars.size() < 6);
}

/// Twilight on one side.
void ExtractionFramesTest::saturatedPartIsNoBorder()
{
    cv::Mat frame(480, 640, CV_8UC1);
    cv::RNG(3).fill(frame, cv::RNG::NORMAL, cv::Scalar::all(150), cv::Scalar::all(5));
    frame(cv::Rect(0, 0, 480, 480)).setTo(255);
    const Extraction found = extractStars(frame);
    QCOMPARE(found.status, ExtractionStatus::SaturatedSky);
}

void ExtractionFramesTest::brightSkyKeepsItsStars()
{
    // A third of the sky's own pixels are at full scale.
    cv::Mat1w field = starField(640, 480);
    cv::Mat frame;
    field.convertTo(frame, CV_8U, 0.2, 240.0 - 0.2 * 2000.0);
    const Extraction found = extractStars(frame);
    QVERIFY(found.background > 0.9 * 255);
    QCOMPARE(found.status, ExtractionStatus::Ok);
    QVERIFY2(found.stars.size() > 150, qPrintable(QString::number(found.stars.size())));
}

void ExtractionFramesTest::sizes_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("the least") << 60 << 60;
    QTest::newRow("odd") << 333 << 257;
    QTest::newRow("one strip") << 1200 << 60;
    QTest::newRow("one column") << 60 << 1200;
    QTest::newRow("camera") << 1280 << 960;
    QTest::newRow("6 megapixels") << 3001 << 2003;
    QTest::newRow("24 megapixels") << 6000 << 4000;
}

void ExtractionFramesTest::sizes()
{
    QFETCH(int, width);
    QFETCH(int, height);
    const int apart = width > 2000 ? 120 : 40;
    const cv::Mat1w frame = starField(width, height, apart);
    ExtractionOptions options;
    options.maxStars = 100000;
    options.minStars = 1;
    options.minSnr = 10.0;
    const Extraction found = extractStars(frame, options);
    QCOMPARE(found.status, ExtractionStatus::Ok);
    QVERIFY(isSane(found, frame));
    int expected = 0, exact = 0;
    for (int y = 20; y < height - 15; y += apart)
        for (int x = 20; x < width - 15; x += apart)
            ++expected;
    for (const DetectedStar &star : found.stars) {
        const int x = int(star.x) / apart * apart + 20, y = int(star.y) / apart * apart + 20;
        exact += std::hypot(star.x - x - 0.01 * (y % 37), star.y - y - 0.02 * (x % 23)) < 0.25;
    }
    QVERIFY2(exact >= expected - expected / 100,
             qPrintable(QStringLiteral("%1 of %2").arg(exact).arg(expected)));
    QVERIFY(int(found.stars.size()) <= expected + 2 + expected / 200);
}

void ExtractionFramesTest::paddedRowsMakeNoDifference()
{
    const cv::Mat1w frame = starField(400, 300);
    cv::Mat1w wide(340, 500, std::uint16_t(60000));
    frame.copyTo(wide(cv::Rect(50, 20, 400, 300)));
    const cv::Mat part = wide(cv::Rect(50, 20, 400, 300));
    QVERIFY(!part.isContinuous());
    const Extraction whole = extractStars(frame), padded = extractStars(part);
    QVERIFY(!whole.stars.empty());
    QCOMPARE(padded.stars.size(), whole.stars.size());
    for (std::size_t i = 0; i < whole.stars.size(); ++i) {
        QCOMPARE(padded.stars[i].x, whole.stars[i].x);
        QCOMPARE(padded.stars[i].flux, whole.stars[i].flux);
    }
}

void ExtractionFramesTest::channelsMakeNoDifference()
{
    const cv::Mat1w frame = starField(400, 300);
    cv::Mat colour;
    const cv::Mat planes[] = {frame, frame, frame};
    cv::merge(planes, 3, colour);
    const Extraction grey = extractStars(frame), three = extractStars(colour);
    QCOMPARE(three.stars.size(), grey.stars.size());
    for (std::size_t i = 0; i < grey.stars.size(); ++i) {
        QVERIFY(std::abs(three.stars[i].x - grey.stars[i].x) < 1e-3);
        QVERIFY(std::abs(three.stars[i].y - grey.stars[i].y) < 1e-3);
    }
}

void ExtractionFramesTest::noMoreStarsThanWanted()
{
    ExtractionOptions options;
    options.maxStars = 12;
    const Extraction found = extractStars(starField(800, 600), options);
    QCOMPARE(found.stars.size(), std::size_t(12));
    // Brighter towards the right: the brightest are those that are kept.
    for (const DetectedStar &star : found.stars)
        QVERIFY2(star.x > 700, qPrintable(QString::number(star.x)));
}

void ExtractionFramesTest::starsAtTheEdgeAreLeftOut()
{
    cv::Mat1w frame = starField(400, 300);
    const std::size_t before = extractStars(frame).stars.size();
    addStar(frame, 0.4, 100, 20000);
    addStar(frame, 200, 299.3, 20000);
    addStar(frame, 399, 0, 20000);
    QCOMPARE(extractStars(frame).stars.size(), before);
}

void ExtractionFramesTest::hotPixelsAreNoStars()
{
    cv::Mat1w frame = noisySky(1280, 960, 5);
    std::mt19937 random(11);
    for (int i = 0; i < 2000; ++i)
        frame(int(random() % 960), int(random() % 1280)) = std::uint16_t(3000 + random() % 60000);
    const Extraction found = extractStars(frame);
    // 2000 hot pixels have some 13 pairs that touch.
    QVERIFY2(found.stars.size() < 25, qPrintable(QString::number(found.stars.size())));
    QVERIFY(!measureStar(cv::Mat1w(64, 64, std::uint16_t(9)), 30, 30, 10));
    cv::Mat1w lone = noisySky(64, 64, 6);
    lone(30, 31) = 60000;
    QVERIFY(!measureStar(lone, 30, 30, 10));
}

void ExtractionFramesTest::bordersMakeNoStars_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("softened"); // the noise of neighbours is no longer independent
    for (const bool softened : {false, true}) {
        const auto row = [softened](const char *border, int width, int height) {
            QTest::addRow("%s%s", border, softened ? ", softened" : "")
                << width << height << softened;
        };
        row("a narrow one", 640, 512);
        row("two fifths of the picture", 820, 680);
        row("four fifths of the picture", 1120, 960);
    }
}

/// As where a picture of a narrow lens is brought to a coarser scale, in the value of its sky.
void ExtractionFramesTest::bordersMakeNoStars()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(bool, softened);
    cv::Mat1w sky = starField(520, 400);
    if (softened)
        cv::GaussianBlur(sky, sky, {3, 3}, 0.8);
    const Extraction alone = extractStars(sky);
    cv::Mat1w frame(height, width, std::uint16_t(cv::mean(sky)[0]));
    sky.copyTo(frame(cv::Rect(60, 50, sky.cols, sky.rows)));
    const Extraction found = extractStars(frame);
    const auto sure = [](const Extraction &picture) { // noise may pass for the faintest
        return std::count_if(picture.stars.begin(), picture.stars.end(),
                             [](const DetectedStar &star) { return star.snr > 5.0; });
    };
    QCOMPARE(sure(found), sure(alone));
    QVERIFY2(std::abs(found.noise / alone.noise - 1.0) < 0.1,
             qPrintable(QString::number(found.noise)));
    for (const DetectedStar &star : alone.stars)
        QVERIFY(star.snr < 5.0 ||
                std::any_of(found.stars.begin(), found.stars.end(), [&star](const auto &other) {
                    return std::hypot(other.x - 60 - star.x, other.y - 50 - star.y) < 0.1;
                }));
}

void ExtractionFramesTest::measuringNeedsAStar_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("radius");
    QTest::addColumn<bool>("found");
    const double none = std::nan("");
    QTest::newRow("on the star") << 60.0 << 60.0 << 8 << true;
    QTest::newRow("beside it") << 65.0 << 56.0 << 8 << true;
    QTest::newRow("nothing there") << 40.0 << 40.0 << 8 << false;
    QTest::newRow("just too far") << 80.0 << 60.0 << 8 << false;
    QTest::newRow("outside") << 5000.0 << 60.0 << 8 << false;
    QTest::newRow("far outside") << -1e300 << 1e300 << 8 << false;
    QTest::newRow("no number") << none << 60.0 << 8 << false;
    QTest::newRow("radius too small") << 60.0 << 60.0 << 1 << false;
    QTest::newRow("radius too large") << 60.0 << 60.0 << 65 << false;
    QTest::newRow("negative radius") << 60.0 << 60.0 << -8 << false;
    QTest::newRow("at the edge") << 0.0 << 100.0 << 8 << false;
}

void ExtractionFramesTest::measuringNeedsAStar()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(int, radius);
    QFETCH(bool, found);
    cv::Mat1w frame = noisySky(160, 160, 2);
    addStar(frame, 60.3, 60.7, 6000);
    addStar(frame, 0.2, 100, 6000);
    const std::optional<DetectedStar> star = measureStar(frame, x, y, radius);
    QCOMPARE(bool(star), found);
    if (star)
        QVERIFY(std::hypot(star->x - 60.3, star->y - 60.7) < 0.03);
}

void ExtractionFramesTest::measuringBeginsInsideTheFrame_data()
{
    QTest::addColumn<double>("starX");
    QTest::addColumn<double>("starY");
    QTest::addColumn<double>("x"); // the last place inside
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("stepX"); // from there to the first outside
    QTest::addColumn<double>("stepY");
    QTest::newRow("left") << 6.0 << 80.0 << -0.25 << 80.0 << -0.25 << 0.0;
    QTest::newRow("right") << 153.0 << 80.0 << 159.25 << 80.0 << 0.25 << 0.0;
    QTest::newRow("top") << 80.0 << 6.0 << 80.0 << -0.25 << 0.0 << -0.25;
    QTest::newRow("bottom") << 80.0 << 153.0 << 80.0 << 159.25 << 0.0 << 0.25;
}

void ExtractionFramesTest::measuringBeginsInsideTheFrame()
{
    QFETCH(double, starX);
    QFETCH(double, starY);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, stepX);
    QFETCH(double, stepY);
    cv::Mat1w frame = noisySky(160, 160, 2);
    addStar(frame, starX, starY, 6000);
    QVERIFY(measureStar(frame, x, y, 12));
    QVERIFY(!measureStar(frame, x + stepX, y + stepY, 12));
}

QTEST_GUILESS_MAIN(ExtractionFramesTest)
#include "tst_extractionframes.moc"
