// SPDX-License-Identifier: MIT
// Are the stars of frames with known stars found, and are they where they are?
#include "foundstars.h"
#include "recognition/extraction.h"

#include <QFile>
#include <QTest>
#include <cmath>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

using namespace recognition;

namespace
{
/// A line of golden/stars.csv.
struct Golden {
    double x, y, flux, fluxSigma, snr;
    double sigma; ///< the least standard error of x or y, pixels
    bool saturated;
    bool nearlySaturated; ///< neither nor
};

const QString folder = QStringLiteral(TEST_SOURCE_DIR "/golden/");

cv::Mat goldenFrame(const QString &name)
{
    return cv::imread((folder + name + ".png").toStdString(),
                      cv::IMREAD_ANYDEPTH | cv::IMREAD_ANYCOLOR);
}

std::vector<Golden> goldenOf(const QString &name)
{
    QFile file(folder + "stars.csv");
    std::vector<Golden> stars;
    if (!file.open(QIODevice::ReadOnly))
        return stars;
    while (!file.atEnd()) {
        const QList<QByteArray> cells = file.readLine().trimmed().split(',');
        if (cells.size() == 8 && QString::fromLatin1(cells[0]) == name)
            stars.push_back({cells[1].toDouble(), cells[2].toDouble(), cells[3].toDouble(),
                             cells[4].toDouble(), cells[5].toDouble(), cells[6].toDouble(),
                             cells[7] != "0", cells[7] == "nearly"});
    }
    return stars;
}

double distance(const DetectedStar &found, const Golden &star)
{
    return std::hypot(found.x - star.x, found.y - star.y);
}

const DetectedStar *foundNear(const std::vector<DetectedStar> &stars, const Golden &golden,
                              double reach)
{
    for (const DetectedStar &star : stars)
        if (distance(star, golden) < reach)
            return &star;
    return nullptr;
}

/// Visible in the frame and not cut off: borders may hide some.
bool isWhole(const cv::Mat &frame, const Golden &star)
{
    const cv::Rect core =
        cv::Rect(int(std::lround(star.x)) - 6, int(std::lround(star.y)) - 6, 13, 13) &
        cv::Rect(0, 0, frame.cols, frame.rows);
    cv::Mat grey;
    cv::reduce(frame(core).clone().reshape(1, core.height), grey, 0, cv::REDUCE_MIN);
    return cv::countNonZero(grey == 0) == 0;
}
/// The first number of a sentence.
double numberIn(const std::string &sentence)
{
    const std::size_t at = sentence.find_first_of("0123456789");
    return at == std::string::npos ? -1.0 : std::stod(sentence.substr(at));
}

/// The satellite's way, as the generator has it, runs over some of the stars.
bool isBehindSatellite(const QString &name, const Golden &star)
{
    return name == "satellite" && std::abs(star.y - 40.0 - 0.5 * star.x) < 12.0;
}
} // namespace

class ExtractionTest : public QObject
{
    Q_OBJECT

private slots:
    void starsAreFound_data();
    void starsAreFound();
    void placesAreAsExactAsTheNoiseAllows_data();
    void placesAreAsExactAsTheNoiseAllows();
    void brightnessAndWidth_data();
    void brightnessAndWidth();
    void saturatedStarsAreMarked_data();
    void saturatedStarsAreMarked();
    void levelAndNoise_data();
    void levelAndNoise();
    void framesOfNoUse_data();
    void framesOfNoUse();
    void oneStarIsMeasured_data();
    void oneStarIsMeasured();

private:
    void clearFrames();
};

void ExtractionTest::clearFrames()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"plain", "narrow", "hotpixels", "wide", "gradient", "clouds", "colour", "saturated",
          "twelvebits", "sixteenbits", "letterbox", "turned", "satellite"})
        QTest::newRow(name) << name;
}

void ExtractionTest::starsAreFound_data()
{
    clearFrames();
}

void ExtractionTest::starsAreFound()
{
    QFETCH(QString, name);
    // The structure of clouds counts as noise.
    const double sureSnr = name == "clouds" ? 30.0 : 8.0;
    const double part = name == "clouds" ? 0.5 : 0.8;
    const cv::Mat frame = goldenFrame(name);
    const std::vector<Golden> golden = goldenOf(name);
    QVERIFY(!frame.empty() && golden.size() >= 20);
    const Extraction found = extractStars(frame);
    QCOMPARE(found.status, ExtractionStatus::Ok);
    QVERIFY(reasonOf(found).empty());

    int strangers = 0, stars = 0, whole = 0;
    for (const Golden &star : golden) {
        whole += isWhole(frame, star);
        if (star.snr > sureSnr && isWhole(frame, star) && !isBehindSatellite(name, star))
            QVERIFY2(
                foundNear(found.stars, star, 1.0),
                qPrintable(QStringLiteral("%1 %2 (%3)").arg(star.x).arg(star.y).arg(star.snr)));
    }
    for (const DetectedStar &star : found.stars) {
        const bool known = std::any_of(golden.begin(), golden.end(), [&](const Golden &one) {
            return distance(star, one) < 3.0;
        });
        ++(known ? stars : strangers);
    }
    // At 4.5 sigma a frame of this size has less than one peak of noise; pairs of hot pixels are
    // stars to any eye.
    QVERIFY2(strangers <= 2, qPrintable(QString::number(strangers)));
    QVERIFY2(stars >= part * whole, qPrintable(QString::number(stars)));
    QVERIFY(std::is_sorted(
        found.stars.begin(), found.stars.end(),
        [](const DetectedStar &a, const DetectedStar &b) { return a.flux > b.flux; }));
}

void ExtractionTest::placesAreAsExactAsTheNoiseAllows_data()
{
    clearFrames();
}

void ExtractionTest::placesAreAsExactAsTheNoiseAllows()
{
    QFETCH(QString, name);
    const Extraction found = extractStars(goldenFrame(name));
    double squares = 0.0;
    int compared = 0;
    for (const Golden &star : goldenOf(name)) {
        const DetectedStar *one = foundNear(found.stars, star, 1.5);
        if (!one || star.snr < 10.0)
            continue;
        const double error = distance(*one, star);
        // The bound is for pixels that are not saturated; a flat top costs some of the light.
        const double expected = std::hypot(star.saturated ? 3.0 * star.sigma : star.sigma, 0.004);
        squares += error * error / (expected * expected);
        ++compared;
    }
    QVERIFY(compared >= 10);
    const double ratio = std::sqrt(squares / (2.0 * compared));
    QVERIFY2(ratio < 1.5, qPrintable(QStringLiteral("%1 times the bound").arg(ratio)));
}

void ExtractionTest::brightnessAndWidth_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("fwhm");
    QTest::newRow("plain") << "plain" << 2.5;
    QTest::newRow("narrow") << "narrow" << 1.5;
    QTest::newRow("hot pixels") << "hotpixels" << 1.5;
    QTest::newRow("wide") << "wide" << 6.0;
    QTest::newRow("gradient") << "gradient" << 2.5;
    QTest::newRow("colour") << "colour" << 2.5;
    QTest::newRow("16 bits") << "sixteenbits" << 2.5;
}

void ExtractionTest::brightnessAndWidth()
{
    QFETCH(QString, name);
    QFETCH(double, fwhm);
    const Extraction found = extractStars(goldenFrame(name));
    QVERIFY2(std::abs(found.fwhm - fwhm) < 0.06 * fwhm, qPrintable(QString::number(found.fwhm)));
    QVERIFY2(found.elongation < 1.4, qPrintable(QString::number(found.elongation)));
    double light = 0.0, significance = 0.0;
    int compared = 0;
    for (const Golden &star : goldenOf(name)) {
        const DetectedStar *one = foundNear(found.stars, star, 1.0);
        if (!one || star.snr < 20.0 || star.saturated)
            continue;
        // The width is measured too, which adds as much again.
        QVERIFY2(std::abs(one->flux - star.flux) < 5.0 * star.fluxSigma + 0.02 * star.flux,
                 qPrintable(QStringLiteral("%1 for %2").arg(one->flux).arg(star.flux)));
        light += one->flux / star.flux;
        significance += one->snr / star.snr;
        ++compared;
    }
    QVERIFY(compared >= 5);
    QVERIFY2(std::abs(light / compared - 1.0) < 0.04,
             qPrintable(QString::number(light / compared)));
    QVERIFY2(std::abs(significance / compared - 1.0) < 0.1,
             qPrintable(QString::number(significance / compared)));
}

void ExtractionTest::saturatedStarsAreMarked_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("8 bits") << "saturated";
    QTest::newRow("12 of 16 bits") << "twelvebits";
    QTest::newRow("none is") << "narrow";
}

void ExtractionTest::saturatedStarsAreMarked()
{
    QFETCH(QString, name);
    const Extraction found = extractStars(goldenFrame(name));
    int marked = 0;
    for (const Golden &star : goldenOf(name)) {
        const DetectedStar *one = foundNear(found.stars, star, 1.0);
        if (!one)
            continue;
        marked += one->saturated && !star.nearlySaturated;
        if (!star.nearlySaturated)
            QVERIFY2(one->saturated == star.saturated,
                     qPrintable(QStringLiteral("%1 %2").arg(star.x).arg(star.y)));
    }
    QVERIFY2((marked > 0) == (name != "narrow"), qPrintable(QString::number(marked)));
}

void ExtractionTest::levelAndNoise_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("level"); // as in golden/generate.py
    QTest::addColumn<double>("noise"); // before rounding, of one channel
    QTest::addColumn<int>("channels");
    QTest::newRow("plain") << "plain" << 20.0 << 2.0 << 1;
    QTest::newRow("wide") << "wide" << 20.0 << 2.0 << 1;
    QTest::newRow("twelvebits") << "twelvebits" << 300.0 << 9.0 << 1;
    QTest::newRow("sixteenbits") << "sixteenbits" << 900.0 << 40.0 << 1;
    QTest::newRow("colour") << "colour" << 20.0 << 2.0 << 3;
    QTest::newRow("searched binned") << "" << 1000.0 << 30.0 << 1;
}

void ExtractionTest::levelAndNoise()
{
    QFETCH(QString, name);
    QFETCH(double, level);
    QFETCH(double, noise);
    QFETCH(int, channels);
    cv::Mat frame = cv::Mat(1400, 2400, CV_16UC1);
    if (name.isEmpty())
        cv::RNG(5).fill(frame, cv::RNG::NORMAL, level, noise);
    else
        frame = goldenFrame(name);
    const Extraction found = extractStars(frame);
    QVERIFY2(std::abs(found.background - level) < 0.1 * noise,
             qPrintable(QString::number(found.background)));
    const double expected = std::sqrt((noise * noise + 1.0 / 12.0) / channels);
    QVERIFY2(std::abs(found.noise / expected - 1.0) < 0.04,
             qPrintable(QStringLiteral("%1, not %2").arg(found.noise).arg(expected)));
}

void ExtractionTest::framesOfNoUse_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ExtractionStatus>("status");
    QTest::addColumn<int>("most"); // stars
    QTest::addColumn<QByteArray>("word");
    QTest::newRow("trailed") << "trailed" << ExtractionStatus::Trailed << 60
                             << QByteArray("trailed");
    QTest::newRow("out of focus") << "unfocused" << ExtractionStatus::OutOfFocus << 20
                                  << QByteArray("Out of focus");
    QTest::newRow("noise") << "noise" << ExtractionStatus::TooFewStars << 3
                           << QByteArray("Too few stars");
    QTest::newRow("daylight") << "daylight" << ExtractionStatus::NoSky << 0
                              << QByteArray("does not look like the sky");
}

void ExtractionTest::framesOfNoUse()
{
    QFETCH(QString, name);
    QFETCH(ExtractionStatus, status);
    QFETCH(int, most);
    QFETCH(QByteArray, word);
    const Extraction found = extractStars(goldenFrame(name));
    QCOMPARE(found.status, status);
    QVERIFY2(int(found.stars.size()) <= most, qPrintable(QString::number(found.stars.size())));
    QVERIFY2(reasonOf(found).find(word.toStdString()) != std::string::npos,
             reasonOf(found).c_str());
    if (status == ExtractionStatus::OutOfFocus) {
        QVERIFY2(std::abs(found.fwhm - 16.0) < 1.6, qPrintable(QString::number(found.fwhm)));
        QVERIFY2(std::abs(numberIn(reasonOf(found)) - 16.0) < 1.6, reasonOf(found).c_str());
    }
    if (status == ExtractionStatus::Trailed)
        QVERIFY2(std::abs(numberIn(reasonOf(found)) - found.elongation) < 0.06,
                 reasonOf(found).c_str());
}

void ExtractionTest::oneStarIsMeasured_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"plain", "narrow", "hotpixels", "wide", "gradient", "colour", "saturated", "sixteenbits"})
        QTest::newRow(name) << name;
}

void ExtractionTest::oneStarIsMeasured()
{
    QFETCH(QString, name);
    const cv::Mat frame = goldenFrame(name);
    const int radius = name == "wide" ? 12 : 8;
    double squares = 0.0;
    int compared = 0;
    for (const Golden &star : goldenOf(name)) {
        if (star.snr < 15.0)
            continue;
        const std::optional<DetectedStar> one =
            measureStar(frame, star.x + 2.0, star.y - 1.5, radius);
        QVERIFY2(one, qPrintable(QStringLiteral("%1 %2").arg(star.x).arg(star.y)));
        const double expected = std::hypot(star.saturated ? 3.0 * star.sigma : star.sigma, 0.006);
        squares += std::pow(distance(*one, star) / expected, 2);
        ++compared;
    }
    QVERIFY(compared >= 10);
    const double ratio = std::sqrt(squares / (2.0 * compared));
    QVERIFY2(ratio < 1.6, qPrintable(QStringLiteral("%1 times the bound").arg(ratio)));
}

QTEST_GUILESS_MAIN(ExtractionTest)
#include "tst_extraction.moc"
