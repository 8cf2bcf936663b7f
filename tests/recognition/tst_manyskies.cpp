// SPDX-License-Identifier: MIT
// Is every sky with enough stars recognised, and nothing where there is none? A small part of what
// docs/recognition.md records.
#include "bench/recognition/falseframes.h"
#include "bench/recognition/randomsky.h"
#include "bench/recognition/statistics.h"
#include "recognition/extraction.h"
#include "recognition/recognise.h"

#include <QTest>
#include <cmath>

using namespace recognition;

namespace
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int skies = 8, falseFrames = 40;
#else
constexpr int skies = 60, falseFrames = 304;
#endif
constexpr int firstSky = 5000, firstFalse = 50000; // others than the recorded ones
constexpr int enoughVisible = 20;
} // namespace

class ManySkiesTest : public QObject
{
    Q_OBJECT

private slots:
    void everySkyIsRecognised();
    void anUnluckySkyClaimsItsError();
    void nothingElseIs_data();
    void nothingElseIs();
    void theCountIsThatOfTheSky();
};

void ManySkiesTest::everySkyIsRecognised()
{
    SkyPainter painter;
    int enough = 0, inside = 0;
    std::vector<double> errors;
    for (int number = firstSky; number < firstSky + skies; ++number) {
        const RandomSky sky = randomSky(std::uint64_t(number));
        if (starsAbove(sky, 5.0) < enoughVisible)
            continue;
        ++enough;
        const cv::Mat frame = painter.frameOf(sky);
        RecognitionOptions options;
        options.utcSeconds = *sky.state.date;
        const Extraction stars = extractStars(frame);
        const Recognition found = recognise(stars.stars, frame.cols, frame.rows, options);
        QVERIFY2(
            found.status == RecognitionStatus::Recognised,
            qPrintable(QStringLiteral("sky %1: %2 stars").arg(number).arg(stars.stars.size())));
        const virtualsky::Point pole = truthOf(sky).pole.value();
        const double dx = found.pole.x - pole.x, dy = found.pole.y - pole.y;
        errors.push_back(std::hypot(dx, dy) * virtualsky::pixelScale);
        QVERIFY2(errors.back() < 30.0, qPrintable(QString::number(errors.back())));
        inside += squaredSigmas(dx, dy, found.poleCovariance) < twoSigmaEllipse;
    }
    QVERIFY2(enough > 0.8 * skies, qPrintable(QString::number(enough)));
    QVERIFY2(median(errors) < 1.5, qPrintable(QString::number(median(errors))));
    QVERIFY2(inside >= 0.85 * enough,
             qPrintable(QStringLiteral("%1 of %2").arg(inside).arg(enough)));
}

/// 16 stars above 5 sigma that look like a lens with distortion: the pole, outside the frame, is
/// 82" off, and the claim must say that another mapping is as likely.
void ManySkiesTest::anUnluckySkyClaimsItsError()
{
    const RandomSky sky = randomSky(8557);
    SkyPainter painter;
    const cv::Mat frame = painter.frameOf(sky);
    RecognitionOptions options;
    options.utcSeconds = *sky.state.date;
    const Recognition found = recognise(extractStars(frame).stars, frame.cols, frame.rows, options);
    QVERIFY(found.status == RecognitionStatus::Recognised);
    const virtualsky::Point pole = truthOf(sky).pole.value();
    const double squared =
        squaredSigmas(found.pole.x - pole.x, found.pole.y - pole.y, found.poleCovariance);
    QVERIFY2(squared <= twoSigmaEllipse, qPrintable(QString::number(squared)));
    QVERIFY2(found.poleSigmaArcseconds < 60.0,
             qPrintable(QString::number(found.poleSigmaArcseconds)));
}

void ManySkiesTest::nothingElseIs_data()
{
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind < falseKinds; ++kind)
        QTest::newRow(nameOf(FalseKind(kind)).c_str()) << kind;
}

void ManySkiesTest::nothingElseIs()
{
    QFETCH(int, kind);
    for (int number = firstFalse + kind; number < firstFalse + falseFrames; number += falseKinds) {
        const FalseFrame frame = falseFrame(std::uint64_t(number));
        QCOMPARE(int(frame.kind), kind);
        RecognitionOptions options;
        options.utcSeconds = 1.8e9;
        if (frame.kind == FalseKind::OtherPole)
            options.hemisphere = frame.askSouth ? Hemisphere::South : Hemisphere::North;
        const Recognition found = recognise(extractStars(frame.picture).stars, frame.picture.cols,
                                            frame.picture.rows, options);
        QVERIFY2(found.status != RecognitionStatus::Recognised,
                 qPrintable(QStringLiteral("picture %1, chance %2").arg(number).arg(found.chance)));
    }
}

/// The count that the bars go by, against a clear sky's frame: most counted stars are found.
void ManySkiesTest::theCountIsThatOfTheSky()
{
    SkyPainter painter;
    const RandomSky sky = plainSky(1, false, 2026);
    const int counted = starsAbove(sky, 5.0);
    ExtractionOptions options;
    options.maxStars = 1000;
    int found = 0;
    for (const DetectedStar &star : extractStars(painter.frameOf(sky), options).stars)
        found += star.snr > 5.5; // the count knows the photons' own noise too
    QVERIFY(counted > 50);
    QVERIFY2(std::abs(found - counted) < 0.15 * counted,
             qPrintable(QStringLiteral("%1 found, %2 counted").arg(found).arg(counted)));
}

QTEST_GUILESS_MAIN(ManySkiesTest)
#include "tst_manyskies.moc"
