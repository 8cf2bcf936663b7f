// SPDX-License-Identifier: MIT
// Is nothing ever recognised in star lists that are not the pole's sky, and does none of them do
// harm?
//
// QUORVANDEL_FUZZ_LISTS sets how many lists are tried.
#include <QtTest>

#include "astrometry/catalogue.h"
#include "goldenfields.h"
#include "recognition/axis.h"
#include "recognition/mounterror.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <cmath>
#include <limits>
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

class Lists
{
public:
    explicit Lists(unsigned seed) : random(seed) {}

    double between(double least, double greatest)
    {
        return std::uniform_real_distribution<double>(least, greatest)(random);
    }
    int whole(int least, int greatest)
    {
        return std::uniform_int_distribution<int>(least, greatest)(random);
    }

    // A list as unlike the sky as its kind makes it.
    std::vector<DetectedStar> next(int width, int height)
    {
        const int n = whole(0, 60);
        const int kind = whole(0, 6);
        const double angle = between(0.0, 7.0);
        const double step = between(1.0, 60.0);
        std::vector<DetectedStar> stars;
        for (int i = 0; i < n; ++i) {
            double x = between(0.0, width - 1.0);
            double y = between(0.0, height - 1.0);
            if (kind == 1) { // on a line, as lamps are
                x = 0.5 * width + i * step * std::cos(angle);
                y = 0.5 * height + i * step * std::sin(angle);
            } else if (kind == 2) { // on a grid, as windows are
                x = (i % 8) * step;
                const int row = i / 8;
                y = row * step;
            } else if (kind == 3) { // in a crowd
                x = 0.4 * width + between(0.0, 60.0);
                y = 0.4 * height + between(0.0, 60.0);
            } else if (kind == 4) { // all in one place
                x = 100.0;
                y = 100.0;
            } else if (kind == 5) { // on a circle
                x = 0.5 * width + 5.0 * step * std::cos(0.3 * i);
                y = 0.5 * height + 5.0 * step * std::sin(0.3 * i);
            }
            stars.push_back({x, y, between(1.0, 1e5), between(3.0, 300.0), between(1.0, 8.0),
                             whole(0, 9) == 0});
        }
        if (kind == 6)
            spoil(stars);
        return stars;
    }

    void spoil(std::vector<DetectedStar> &stars)
    {
        const double values[] = {std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::infinity(),
                                 -1e300,
                                 1e300,
                                 0.0,
                                 -1.0,
                                 1e-300};
        for (DetectedStar &star : stars) {
            double *const members[] = {&star.x, &star.y, &star.flux, &star.snr, &star.fwhm};
            if (whole(0, 1) == 0)
                *members[whole(0, 4)] = values[whole(0, 6)];
        }
    }

    std::mt19937 random;
};
} // namespace

class RecognitionFuzzTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsRecognised_data();
    void nothingIsRecognised();
    void skiesFarFromThePoleAreNotRecognised();
    void spoiltListsOfTheSkyDoNoHarm();
};

void RecognitionFuzzTest::nothingIsRecognised_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::newRow("1") << 1U;
    QTest::newRow("2") << 2U;
}

void RecognitionFuzzTest::nothingIsRecognised()
{
    QFETCH(unsigned, seed);
    Lists lists(seed);
    const int n = listsToTry(80);
    for (int i = 0; i < n; ++i) {
        const int width = lists.whole(1, 5000);
        const int height = lists.whole(1, 4000);
        RecognitionOptions options;
        options.utcSeconds = date;
        if (lists.whole(0, 3) == 0) {
            options.leastScale = lists.between(1.0, 100.0);
            options.greatestScale = options.leastScale * lists.between(1.0, 3.0);
        }
        const Recognition found = recognise(lists.next(width, height), width, height, options);
        QVERIFY2(found.status != RecognitionStatus::Recognised, qPrintable(QString::number(i)));
        QVERIFY(!reason(found).empty());
        QVERIFY(axisOfTurns({found, found}).status == AxisStatus::TooFewFrames);
        QVERIFY(!mountError(found, Axis(), {}).has_value());
    }
}

// As many stars as real fields have, of the same brightnesses and spacing, from elsewhere: each
// catalogue star of a hemisphere is given another star's right ascension.
void RecognitionFuzzTest::skiesFarFromThePoleAreNotRecognised()
{
    Lists lists(3);
    const int n = listsToTry(40);
    for (int i = 0; i < n; ++i) {
        const double focalLength = lists.between(3000.0, 30000.0); // pixels
        std::vector<std::pair<double, DetectedStar>> sky;
        const double offX = lists.between(-0.1, 0.1);
        const double offY = lists.between(-0.1, 0.1);
        for (const astrometry::CatalogueStar &star : astrometry::catalogue()) {
            const double radius = (90.0 - std::abs(star.decDegrees)) * astrometry::degree;
            const double angle = lists.between(0.0, 2.0 * astrometry::pi);
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
    Lists lists(4);
    const int n = listsToTry(80);
    int recognised = 0;
    for (int i = 0; i < n; ++i) {
        const auto &all = goldenfields::all();
        goldenfields::Field field = all[std::size_t(lists.whole(0, int(all.size()) - 1))];
        lists.spoil(field.stars);
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
