// SPDX-License-Identifier: MIT
// Do frames of random content do no harm, and is nothing ever recognised in them?
//
// QUORVANDEL_FUZZ_FRAMES sets how many frames are tried.
#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <QtTest>
#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>
#include <random>

using namespace recognition;

namespace
{
constexpr double date = 1795204800.0;

int framesToTry()
{
    int usual = 400;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    usual = 100;
#endif
    bool given = false;
    const int wanted = qEnvironmentVariableIntValue("QUORVANDEL_FUZZ_FRAMES", &given);
    return given ? wanted : usual;
}

bool isSane(const Extraction &found, const cv::Mat &frame)
{
    return std::all_of(found.stars.begin(), found.stars.end(), [&frame](const DetectedStar &star) {
        return star.x > 0 && star.y > 0 && star.x < frame.cols - 1 && star.y < frame.rows - 1 &&
               std::isfinite(star.flux) && star.flux > 0 && star.snr > 0 && star.fwhm > 0 &&
               std::isfinite(star.snr) && std::isfinite(star.fwhm);
    });
}

void addRectangles(cv::Mat &frame, cv::RNG &numbers, double full)
{
    for (int i = numbers.uniform(0, 40); i > 0; --i) {
        const int w = numbers.uniform(1, frame.cols), h = numbers.uniform(1, frame.rows);
        const cv::Rect area =
            cv::Rect(numbers.uniform(0, frame.cols), numbers.uniform(0, frame.rows),
                     numbers.uniform(0, 3) == 0 ? w : 1 + w / 60,
                     numbers.uniform(0, 3) == 0 ? h : 1 + h / 60) &
            cv::Rect(0, 0, frame.cols, frame.rows);
        frame(area) = cv::Scalar::all(numbers.uniform(0.0, full));
    }
}

/// Stars at random places over a quiet sky.
void addSpots(cv::Mat &frame, cv::RNG &numbers, double full)
{
    cv::Mat1f light(frame.size(), 0.0F);
    for (int i = numbers.uniform(0, 60); i > 0; --i)
        light(numbers.uniform(0, light.rows), numbers.uniform(0, light.cols)) =
            float(full * numbers.uniform(0.2, 8.0));
    cv::GaussianBlur(light, light, {}, numbers.uniform(0.7, 2.5));
    cv::Mat wide, three;
    frame.convertTo(wide, CV_MAKETYPE(CV_32F, frame.channels()));
    cv::merge(std::vector<cv::Mat>(std::size_t(frame.channels()), light), three);
    wide += three;
    wide.convertTo(frame, frame.depth());
}

/// One of six kinds of content that no sky has.
void fillAtRandom(cv::Mat &frame, std::mt19937 &random)
{
    cv::RNG numbers(random());
    const double full = frame.depth() == CV_8U ? 255 : 65535;
    const double middle = numbers.uniform(0.0, full), spread = numbers.uniform(0.0, full);
    const int kind = numbers.uniform(0, 6);
    frame = cv::Scalar::all(middle);
    if (kind == 1)
        numbers.fill(frame, cv::RNG::UNIFORM, 0, full + 1);
    if (kind == 2 || kind == 3)
        numbers.fill(frame, cv::RNG::NORMAL, middle, spread * (kind == 2 ? 0.02 : 0.2));
    if (kind < 4)
        return addRectangles(frame, numbers, full);
    numbers.fill(frame, cv::RNG::NORMAL, 0.1 * middle, 0.01 * full);
    addSpots(frame, numbers, full);
}
} // namespace

class FrameFuzzTest : public QObject
{
    Q_OBJECT

private slots:
    void randomFrames();
    void manyRandomFramesHaveEnoughStars();
};

void FrameFuzzTest::randomFrames()
{
    constexpr int types[] = {CV_8UC1, CV_8UC3, CV_16UC1, CV_16UC3};
    std::mt19937 random(2026);
    const int n = framesToTry();
    for (int i = 0; i < n; ++i) {
        cv::Mat whole(32 + int(random() % 200), 32 + int(random() % 300), types[random() % 4]);
        fillAtRandom(whole, random);
        const cv::Rect inner(0, 0, std::max(32, whole.cols - int(random() % 9)), whole.rows);
        const cv::Mat frame = whole(inner);
        const Extraction found = extractStars(frame);
        QVERIFY2(isSane(found, frame), qPrintable(QString::number(i)));
        const double x = double(random() % 400) - 50, y = double(random() % 300) - 50;
        const auto star = measureStar(frame, x, y, int(random() % 70));
        QVERIFY(!star || (star->x >= 0 && star->x <= frame.cols - 1 && star->snr >= 5.0));
        RecognitionOptions options;
        options.utcSeconds = date;
        const Recognition result = recognise(found.stars, frame.cols, frame.rows, options);
        QVERIFY2(result.status != RecognitionStatus::Recognised, qPrintable(QString::number(i)));
    }
}

// Otherwise the test above would say nothing about recognition.
void FrameFuzzTest::manyRandomFramesHaveEnoughStars()
{
    std::mt19937 random(7);
    int enough = 0;
    for (int i = 0; i < 60; ++i) {
        cv::Mat frame(200, 300, CV_8UC1);
        fillAtRandom(frame, random);
        enough += extractStars(frame).stars.size() >= 12;
    }
    QVERIFY2(enough >= 12, qPrintable(QString::number(enough)));
}

QTEST_GUILESS_MAIN(FrameFuzzTest)
#include "tst_framefuzz.moc"
