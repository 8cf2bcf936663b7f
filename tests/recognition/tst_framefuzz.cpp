// SPDX-License-Identifier: MIT
// Do frames of random content do no harm, and is nothing ever recognised in them?
//
// QUORVANDEL_FUZZ_FRAMES sets how many frames are tried.
#include "bench/recognition/randomframes.h"
#include "foundstars.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <QtTest>
#include <algorithm>
#include <cmath>
#include <random>

using namespace recognition;

namespace
{
constexpr double frameDate = 1795204800.0;

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
    std::mt19937 random(2026);
    const int n = framesToTry();
    for (int i = 0; i < n; ++i) {
        const cv::Mat frame = randomFrame(std::uint64_t(i));
        const Extraction found = extractStars(frame);
        QVERIFY2(isSane(found, frame), qPrintable(QString::number(i)));
        const double x = double(random() % 400) - 50, y = double(random() % 300) - 50;
        const auto star = measureStar(frame, x, y, int(random() % 70));
        QVERIFY(!star || (star->x >= 0 && star->x <= frame.cols - 1 && star->snr >= 5.0));
        RecognitionOptions options;
        options.utcSeconds = frameDate;
        const Recognition result = recognise(found.stars, frame.cols, frame.rows, options);
        QVERIFY2(result.status != RecognitionStatus::Recognised, qPrintable(QString::number(i)));
    }
}

// Otherwise the test above would say nothing about recognition.
void FrameFuzzTest::manyRandomFramesHaveEnoughStars()
{
    int enough = 0;
    for (int i = 0; i < 60; ++i)
        enough += extractStars(randomFrame(std::uint64_t(i))).stars.size() >= 12;
    QVERIFY2(enough >= 12, qPrintable(QString::number(enough)));
}

QTEST_GUILESS_MAIN(FrameFuzzTest)
#include "tst_framefuzz.moc"
