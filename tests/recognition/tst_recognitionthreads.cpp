// SPDX-License-Identifier: MIT
// Do many threads at a time extract and recognise what one does alone?
#include <QtTest>

#include "goldenfields.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <cmath>
#include <opencv2/core.hpp>
#include <thread>

using namespace recognition;
using goldenfields::Field;

namespace
{
Recognition recognisedField(const Field &field)
{
    RecognitionOptions options;
    options.utcSeconds = field.utcSeconds;
    return recognise(field.stars, field.width, field.height, options);
}

cv::Mat1w starField()
{
    constexpr double sigma = 1.1; // pixels
    cv::Mat1w frame(400, 500);
    cv::RNG random(7);
    random.fill(frame, cv::RNG::NORMAL, 2000.0, 50.0);
    for (int y = 20; y < frame.rows - 15; y += 40)
        for (int x = 20; x < frame.cols - 15; x += 40)
            for (int j = y - 6; j <= y + 6; ++j)
                for (int i = x - 6; i <= x + 6; ++i) {
                    const double dx = i - x - 0.02 * (y % 23), dy = j - y;
                    const double light =
                        (3000.0 + 10.0 * x) * std::exp(-(dx * dx + dy * dy) / (2 * sigma * sigma));
                    frame(j, i) = cv::saturate_cast<std::uint16_t>(frame(j, i) + light);
                }
    return frame;
}
} // namespace

class RecognitionThreadsTest : public QObject
{
    Q_OBJECT

private slots:
    void recognising(); // before the indices of the hemispheres are built
    void extracting();
};

// The first calls of all, at the same time: the same results as one after the other.
void RecognitionThreadsTest::recognising()
{
    const std::vector<Field> &fields = goldenfields::all();
    constexpr std::size_t rounds = 2;
    std::vector<Recognition> found(rounds * fields.size());
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < found.size(); ++i)
        threads.emplace_back(
            [&fields, &found, i] { found[i] = recognisedField(fields[i % fields.size()]); });
    for (std::thread &thread : threads)
        thread.join();
    for (std::size_t i = 0; i < found.size(); ++i) {
        const Field &field = fields[i % fields.size()];
        const Recognition alone = recognisedField(field);
        QVERIFY2(found[i].status == RecognitionStatus::Recognised, field.name.constData());
        QVERIFY(alone.matched.size() == found[i].matched.size());
        QVERIFY(alone.pole.x == found[i].pole.x && alone.pole.y == found[i].pole.y);
        QVERIFY(alone.chance == found[i].chance);
    }
}

void RecognitionThreadsTest::extracting()
{
    const cv::Mat1w frame = starField();
    const Extraction alone = extractStars(frame);
    QVERIFY(alone.stars.size() > 50);
    std::vector<Extraction> found(4);
    std::vector<std::thread> threads;
    for (Extraction &one : found)
        threads.emplace_back([&one, &frame] {
            for (int i = 0; i < 5; ++i)
                one = extractStars(frame);
        });
    for (std::thread &thread : threads)
        thread.join();
    for (const Extraction &one : found) {
        QCOMPARE(one.stars.size(), alone.stars.size());
        for (std::size_t i = 0; i < alone.stars.size(); ++i)
            QVERIFY(one.stars[i].x == alone.stars[i].x && one.stars[i].y == alone.stars[i].y);
    }
}

QTEST_GUILESS_MAIN(RecognitionThreadsTest)
#include "tst_recognitionthreads.moc"
