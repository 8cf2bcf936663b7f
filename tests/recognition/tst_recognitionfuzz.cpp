// SPDX-License-Identifier: MIT
// Is nothing ever recognised in star lists that are not the pole's sky, and does none of them do
// harm?
//
// QUORVANDEL_FUZZ_LISTS sets how many lists are tried.
#include <QtTest>

#include "astrometry/catalogue.h"
#include "bench/recognition/randomlists.h"
#include "goldenfields.h"
#include "recognition/axis.h"
#include "recognition/mounterror.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

using namespace recognition;

namespace
{
constexpr double date = 1795204800.0;

int listsToTry(int usual)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    usual /= 10;
#endif
    bool given = false;
    const int wanted = qEnvironmentVariableIntValue("QUORVANDEL_FUZZ_LISTS", &given);
    return given ? wanted : usual;
}

double between(std::mt19937_64 &random, double least, double greatest)
{
    return std::uniform_real_distribution<double>(least, greatest)(random);
}
} // namespace

class RecognitionFuzzTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsRecognised_data();
    void nothingIsRecognised();
    void listsHaveEnoughStars();
    void skiesFarFromThePoleAreNotRecognised();
    void spoiltListsOfTheSkyDoNoHarm();
};

void RecognitionFuzzTest::nothingIsRecognised_data()
{
    QTest::addColumn<int>("first");
    QTest::newRow("from 0") << 0;
    QTest::newRow("from 1000000") << 1000000;
}

void RecognitionFuzzTest::nothingIsRecognised()
{
    QFETCH(int, first);
    const int n = listsToTry(160);
    for (int i = first; i < first + n; ++i) {
        const RandomList list = randomList(std::uint64_t(i));
        const Recognition found = recognise(list.stars, list.width, list.height, list.options);
        QVERIFY2(found.status != RecognitionStatus::Recognised, qPrintable(QString::number(i)));
        QVERIFY(!reason(found).empty());
        QVERIFY(axisOfTurns({found, found}).status == AxisStatus::TooFewFrames);
        QVERIFY(!mountError(found, Axis(), {}).has_value());
    }
}

// Half of them do; otherwise the test above would say little.
void RecognitionFuzzTest::listsHaveEnoughStars()
{
    std::array<int, listKinds> enough = {};
    for (std::uint64_t i = 0; i < 80U * listKinds; ++i) {
        const RandomList list = randomList(i);
        QVERIFY(list.stars.size() <= 60 && list.width > 0 && list.height > 0);
        enough[std::size_t(list.kind)] += list.stars.size() >= minStars;
    }
    for (const int lists : enough)
        QVERIFY2(lists > 20, qPrintable(QString::number(lists)));
}

// As many stars as real fields have, of the same brightnesses and spacing, from elsewhere: each
// catalogue star of a hemisphere is given another star's right ascension.
void RecognitionFuzzTest::skiesFarFromThePoleAreNotRecognised()
{
    std::mt19937_64 random(3);
    const int n = listsToTry(40);
    for (int i = 0; i < n; ++i) {
        const double focalLength = between(random, 3000.0, 30000.0); // pixels
        std::vector<std::pair<double, DetectedStar>> sky;
        const double offX = between(random, -0.1, 0.1);
        const double offY = between(random, -0.1, 0.1);
        for (const astrometry::CatalogueStar &star : astrometry::catalogue()) {
            const double radius = (90.0 - std::abs(star.decDegrees)) * astrometry::degree;
            const double angle = between(random, 0.0, 2.0 * astrometry::pi);
            const double x = 640.0 + focalLength * (radius * std::cos(angle) - offX);
            const double y = 480.0 + focalLength * (radius * std::sin(angle) - offY);
            if (star.decDegrees > 0.0 && x > 0.0 && y > 0.0 && x < 1279.0 && y < 959.0)
                sky.push_back({star.vMagnitude, {x, y, 1.0, 20.0, 2.5, false}});
        }
        std::sort(sky.begin(), sky.end(),
                  [](const auto &a, const auto &b) { return a.first < b.first; });
        std::vector<DetectedStar> stars;
        for (const auto &[magnitude, star] : sky)
            stars.push_back(star);
        RecognitionOptions options;
        options.utcSeconds = date;
        const Recognition found = recognise(stars, 1280, 960, options);
        QVERIFY2(found.status != RecognitionStatus::Recognised, qPrintable(QString::number(i)));
    }
}

// Some values of a real field's stars are spoilt: it may be recognised, and then rightly.
void RecognitionFuzzTest::spoiltListsOfTheSkyDoNoHarm()
{
    std::mt19937_64 random(4);
    const int n = listsToTry(160);
    int recognised = 0;
    for (int i = 0; i < n; ++i) {
        const auto &all = goldenfields::all();
        goldenfields::Field field = all[random() % all.size()];
        spoil(field.stars, random);
        RecognitionOptions options;
        options.utcSeconds = field.utcSeconds;
        const Recognition found = recognise(field.stars, field.width, field.height, options);
        if (found.status != RecognitionStatus::Recognised)
            continue;
        ++recognised;
        QVERIFY2(std::abs(found.scale / field.scale - 1.0) < 0.02, field.name.constData());
        QVERIFY2(std::hypot(found.pole.x - field.pole.x, found.pole.y - field.pole.y) *
                         field.scale <
                     600.0,
                 field.name.constData());
        for (const MatchedStar &star : found.matched)
            QVERIFY(std::isfinite(star.residual) && std::isfinite(star.place.x));
    }
    QVERIFY2(recognised > n / 2, qPrintable(QString::number(recognised)));
}

QTEST_GUILESS_MAIN(RecognitionFuzzTest)
#include "tst_recognitionfuzz.moc"
