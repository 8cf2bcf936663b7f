// SPDX-License-Identifier: MIT
// From which field of view down does the catalogue no longer suffice, and how many false stars may
// there be?
//
// Pinhole cameras look at random points of the pole's sky; of the catalogue's stars in the frame a
// number is found, with centroid errors, and false ones come on top. Beyond the catalogue's edge,
// 12.5 degrees from the poles, the sky is as full of stars, at random. No picture is drawn: this is
// about the catalogue and the search alone.
#include "astrometry/catalogue.h"
#include "astrometry/places.h"
#include "bench/recognition/bars.h"
#include "bench/recognition/reports.h"
#include "bench/recognition/statistics.h"
#include "recognition/recognise.h"

#include <algorithm>
#include <cstdio>
#include <random>

namespace
{
using astrometry::Vector3;
using recognition::DetectedStar;

constexpr double date = 1795204800.0; // 2026-11-20T20:00:00Z
constexpr int width = 1280;
constexpr int height = 960;
constexpr double centroidError = 0.2; // pixels, one axis
constexpr double magnitudeError = 0.15;
constexpr double farthestCentre = 9.0; // degrees from the pole

struct Camera {
    Vector3 right, down, forward;
    double focalLength; // pixels
    bool mirrored;
};

struct Star {
    Vector3 place;
    double magnitude;
};

class Generator
{
public:
    double between(double least, double greatest)
    {
        return std::uniform_real_distribution<double>(least, greatest)(random);
    }
    double normal() { return std::normal_distribution<double>()(random); }

    // A camera that looks so many degrees off either pole, with any roll.
    Camera camera(double scaleArcseconds, double nearest = 0.0, double farthest = farthestCentre)
    {
        const double sign = between(0.0, 1.0) < 0.5 ? -1.0 : 1.0;
        const double off = std::sqrt(between(nearest * nearest, farthest * farthest));
        const Vector3 forward = astrometry::direction(between(0.0, 2.0 * astrometry::pi),
                                                      sign * (90.0 - off) * astrometry::degree);
        const Vector3 across = cross(Vector3{0.0, 0.0, 1.0}, forward);
        const Vector3 level = scaled(across, 1.0 / length(across));
        const Vector3 third = cross(forward, level);
        const double turn = between(0.0, 2.0 * astrometry::pi);
        const double c = std::cos(turn), s = std::sin(turn);
        return {{c * level.x + s * third.x, c * level.y + s * third.y, c * level.z + s * third.z},
                {c * third.x - s * level.x, c * third.y - s * level.y, c * third.z - s * level.z},
                forward,
                1.0 / std::tan(scaleArcseconds * astrometry::arcsecond),
                between(0.0, 1.0) < 0.5};
    }

    /// All those stars that are in the frame, brightest first as they are measured.
    std::vector<DetectedStar> stars(const Camera &camera, const std::vector<Star> &sky)
    {
        std::vector<DetectedStar> found;
        for (const Star &star : sky) {
            const Vector3 &place = star.place;
            const double magnitude = star.magnitude + magnitudeError * normal();
            const double forward = dot(place, camera.forward);
            if (forward < 0.3)
                continue;
            const double factor = camera.focalLength / forward;
            const double x = dot(place, camera.right) * factor;
            const DetectedStar seen = {
                (camera.mirrored ? -x : x) + 0.5 * width + centroidError * normal(),
                dot(place, camera.down) * factor + 0.5 * height + centroidError * normal(),
                std::pow(10.0, -0.4 * (magnitude - 15.0)),
                20.0,
                2.5,
                false};
            if (seen.x > 1.0 && seen.y > 1.0 && seen.x < width - 2 && seen.y < height - 2)
                found.push_back(seen);
        }
        sort(found);
        return found;
    }

    /// Stars between the catalogue's edge and farther than any frame reaches, as many in a square
    /// degree and as bright as the catalogue's.
    std::vector<Star> beyond(const std::vector<Star> &catalogue)
    {
        constexpr double edge = 12.5 * astrometry::degree, end = 30.0 * astrometry::degree;
        const double times = (std::cos(edge) - std::cos(end)) / (1.0 - std::cos(edge));
        std::vector<Star> all;
        const auto number = std::size_t(times * double(catalogue.size()));
        for (std::size_t i = 0; i < number; ++i) {
            const double sine = between(std::cos(end), std::cos(edge));
            const double declination = i % 2 == 0 ? std::asin(sine) : -std::asin(sine);
            const auto like = std::size_t(between(0.0, double(catalogue.size()) - 0.001));
            all.push_back({astrometry::direction(between(0.0, 2.0 * astrometry::pi), declination),
                           catalogue[like].magnitude});
        }
        return all;
    }

    /// Puts the frame's stars together.
    static std::vector<DetectedStar> merged(std::vector<DetectedStar> some,
                                            const std::vector<DetectedStar> &others)
    {
        some.insert(some.end(), others.begin(), others.end());
        sort(some);
        return some;
    }

    // As bright as the faintest real one and brighter.
    void addFalseStars(std::vector<DetectedStar> &stars, int count)
    {
        const double faintest = stars.empty() ? 1.0 : stars.back().flux;
        for (int i = 0; i < count; ++i)
            stars.push_back({between(0.0, width - 1.0), between(0.0, height - 1.0),
                             faintest * std::exp(-std::log(between(1e-9, 1.0))), 20.0, 2.5, false});
        sort(stars);
    }

private:
    static void sort(std::vector<DetectedStar> &stars)
    {
        std::sort(stars.begin(), stars.end(),
                  [](const DetectedStar &a, const DetectedStar &b) { return a.flux > b.flux; });
    }

    std::mt19937_64 random{15};
};

struct Tally {
    int frames = 0, recognised = 0, wrong = 0;
    std::vector<double> times;
};

void tryOne(const std::vector<DetectedStar> &stars, const Camera &camera, Tally &tally)
{
    recognition::RecognitionOptions options;
    options.utcSeconds = date;
    const double before = threadMilliseconds();
    const recognition::Recognition found = recognition::recognise(stars, width, height, options);
    tally.times.push_back(threadMilliseconds() - before);
    ++tally.frames;
    if (found.status != recognition::RecognitionStatus::Recognised)
        return;
    ++tally.recognised;
    const double scale = 1.0 / (camera.focalLength * astrometry::arcsecond);
    tally.wrong += std::abs(found.scale / scale - 1.0) > 0.02 || found.mirrored != camera.mirrored;
}

std::vector<Star> catalogueStars()
{
    const astrometry::CatalogueView all = astrometry::catalogue();
    const std::vector<Vector3> places = astrometry::apparentPlaces(all.begin(), all.end(), date);
    std::vector<Star> stars;
    for (std::size_t i = 0; i < places.size(); ++i)
        stars.push_back({places[i], all.begin()[i].vMagnitude});
    return stars;
}

struct Field {
    double degrees;           // wide
    double nearest, farthest; // degrees from the pole to the frame's centre
};

void reportField(const Field &field, int count, const std::vector<Star> &sky, Bars &bars)
{
    Generator generator;
    const std::vector<Star> beyond = generator.beyond(sky);
    Tally tally;
    std::vector<double> counts;
    int enough = 0;
    const double scale = field.degrees * 3600.0 / width;
    for (int i = 0; i < count; ++i) {
        const Camera camera = generator.camera(scale, field.nearest, field.farthest);
        const std::vector<DetectedStar> known = generator.stars(camera, sky);
        counts.push_back(double(known.size()));
        enough += known.size() >= 12;
        tryOne(Generator::merged(known, generator.stars(camera, beyond)), camera, tally);
    }
    std::printf("| %.1f x %.1f deg | %.1f\" | %.0f to %.0f deg | %.0f / %.0f | %.1f %% | %.1f %% | "
                "%d | %.2f ms |\n",
                field.degrees, field.degrees * height / width, scale, field.nearest, field.farthest,
                quantile(counts, 0.05), median(counts), 100.0 * enough / count,
                100.0 * tally.recognised / count, tally.wrong, median(tally.times));
    bars.atMost("fields recognised wrongly", tally.wrong, 0.0);
}

void reportWidths(int count, const std::vector<Star> &sky, Bars &bars)
{
    std::printf("| field | scale | centre off the pole | catalogue stars: fewest of 20 / median "
                "| 12 or more | recognised | wrong | median time |\n"
                "|---|---|---|---|---|---|---|---|\n");
    for (const double degrees : {1.5, 2.0, 2.5, 3.0, 3.5, 4.0, 5.0, 6.0, 8.0, 12.0, 20.0})
        reportField({degrees, 0.0, farthestCentre}, count, sky, bars);
    for (const double degrees : {4.0, 10.8})
        for (const double nearest : {9.0, 10.0, 11.0, 12.0, 13.0})
            reportField({degrees, nearest, nearest + 1.0}, count, sky, bars);
}

void reportFalseStars(int count, const std::vector<Star> &sky, Bars &bars)
{
    std::printf("\n| real stars | false ones | recognised | wrong | median time |\n"
                "|---|---|---|---|---|\n");
    for (const int real : {7, 8, 10, 12, 20, 40})
        for (const double part : {0.0, 0.5, 1.0, 2.0}) {
            Generator generator;
            Tally tally;
            const int strays = int(std::lround(part * real));
            while (tally.frames < count) {
                const Camera camera = generator.camera(generator.between(10.0, 60.0));
                std::vector<DetectedStar> stars = generator.stars(camera, sky);
                if (stars.size() < std::size_t(real))
                    continue;
                stars.resize(std::size_t(real));
                generator.addFalseStars(stars, strays);
                tryOne(stars, camera, tally);
            }
            std::printf("| %d | %d | %.1f %% | %d | %.2f ms |\n", real, strays,
                        100.0 * tally.recognised / count, tally.wrong, median(tally.times));
            bars.atMost("lists recognised wrongly", tally.wrong, 0.0);
        }
}
} // namespace

bool reportFields(int count)
{
    const std::vector<Star> sky = catalogueStars();
    Bars bars;
    reportWidths(count, sky, bars);
    reportFalseStars(count, sky, bars);
    return bars.kept();
}
