// SPDX-License-Identifier: MIT
// Alternates between matching stars and fitting the mapping, robustly.
#include "recognition/refinement.h"

#include "recognition/modelchoice.h"
#include "recognition/polynomialfit.h"
#include "recognition/pose.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
using astrometry::Vector3;
using Complex = std::complex<double>;

constexpr int rounds = 10;
constexpr double firstRadius = 5.0;     // pixels, of the first match
constexpr double minRadius = 1.5;       // pixels
constexpr double matchSigmas = 6.0;     // of the residuals' scatter
constexpr double blendWidths = 3.0;     // full widths within which two stars disturb each other
constexpr double centroidFloor = 0.03;  // pixels, one axis
constexpr double saturatedFloor = 0.15; // pixels, one axis
constexpr double catalogueError = 0.12; // arcseconds, one axis, of one star
// Common to all stars, arcseconds, one axis. Without a site the diurnal aberration is left out.
constexpr double systematicError = 0.1;
constexpr double systematicErrorWithoutSite = 0.19;
constexpr double typicalWidth = 2.5; // pixels, where none is given

double widthOf(const DetectedStar &star)
{
    return star.fwhm > 0.0 && std::isfinite(star.fwhm) ? star.fwhm : typicalWidth;
}

class Refiner
{
public:
    Refiner(const StarFrame &starFrame, bool mirror, const RecognitionOptions &recognitionOptions)
        : frame(starFrame), mirrored(mirror), options(recognitionOptions)
    {
    }

    bool start(const std::vector<Correspondence> &known, const std::vector<std::size_t> &field);
    bool iterate();
    Refined result() const;

private:
    struct Match {
        std::size_t detected, star; // star of `field`
        double distance;            // plane
    };

    PixelPlace centre() const { return {(frame.width - 1) / 2.0, (frame.height - 1) / 2.0}; }
    PixelPlace placeOf(std::size_t i) const { return {frame.stars[i].x, frame.stars[i].y}; }
    double unit() const { return 0.5 * std::hypot(frame.width, frame.height); }
    SkyMapping mappingOf(const SkyMapping::Fit &fit) const
    {
        return SkyMapping(plane, centre(), unit(), mirrored, fit);
    }
    std::optional<SkyMapping::Frame> planeOf(const std::vector<Correspondence> &known) const;
    void project();
    bool recentre();
    void match(double radiusPixels);
    std::vector<FitPoint> points() const;
    void setNoise(const std::vector<FitPoint> &fitted);
    double residualPixels(const std::vector<FitPoint> &fitted) const;

    const StarFrame &frame;
    bool mirrored;
    const RecognitionOptions &options;
    std::vector<std::size_t> indices; // of the catalogue
    std::vector<Vector3> places;
    SkyMapping::Frame plane = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    std::optional<FieldStars> field;
    std::vector<Match> matches;
    double radiansPerPixel = 0.0;
    double blendRadius = 0.0; // radians
    PolynomialFit best;
};

// The axes of a pinhole camera that sees the first three known stars where they are.
std::optional<SkyMapping::Frame> Refiner::planeOf(const std::vector<Correspondence> &known) const
{
    std::array<CentredPixel, 3> pixels;
    std::array<Vector3, 3> sky;
    for (std::size_t i = 0; i < 3; ++i) {
        const PixelPlace p = placeOf(known[i].detected);
        pixels[i] = {mirrored ? centre().x - p.x : p.x - centre().x, p.y - centre().y};
        const auto at = std::find(indices.begin(), indices.end(), known[i].catalogue);
        if (at == indices.end())
            return std::nullopt;
        sky[i] = places[static_cast<std::size_t>(at - indices.begin())];
    }
    const Vector3 side = {sky[1].x - sky[2].x, sky[1].y - sky[2].y, sky[1].z - sky[2].z};
    const std::optional<Pose> pose = poseOf(pixels, sky, length(side), 0.2);
    if (!pose)
        return std::nullopt;
    const auto &[right, down, forward] = pose->cameraFromSky.rows;
    return SkyMapping::Frame{right, down, forward};
}

void Refiner::project()
{
    field.emplace(indices, places, plane, blendRadius);
}

bool Refiner::start(const std::vector<Correspondence> &known,
                    const std::vector<std::size_t> &fieldIndices)
{
    indices = fieldIndices;
    places = placesAsSeen(indices, options);
    const auto axes = planeOf(known);
    if (!axes)
        return false;
    plane = *axes;
    project();
    std::vector<FitPoint> first;
    for (const Correspondence &pair : known)
        for (std::size_t i = 0; i < field->size(); ++i)
            if ((*field)[i].catalogue == pair.catalogue)
                first.push_back(
                    {mappingOf({}).unitsOf(placeOf(pair.detected)), (*field)[i].plane, 1.0});
    const auto similarity = fitPolynomial(MappingModel::Similarity, first);
    if (!similarity)
        return false;
    best = *similarity;
    radiansPerPixel = std::abs(best.fit.coefficients[1]) / unit();
    std::vector<double> widths;
    for (const DetectedStar &star : frame.stars)
        widths.push_back(widthOf(star));
    blendRadius = blendWidths * medianOf(std::move(widths)) * radiansPerPixel;
    return radiansPerPixel > 0.0 && recentre();
}

// Moves the plane's tangent point to the frame's centre. The fit is of the old plane until the
// next one, which a fraction of a pixel does not matter to.
bool Refiner::recentre()
{
    const SkyMapping mapping = mappingOf(best.fit);
    const Vector3 forward = mapping.skyOf(centre());
    const Vector3 across = cross(forward, plane.right);
    const Vector3 down = scaled(across, 1.0 / length(across));
    plane = {cross(down, forward), down, forward};
    best.fit.coefficients[0] = 0.0;
    project();
    return std::isfinite(forward.x);
}

// Nearest star of the field for each of the frame's, each star of the field once.
void Refiner::match(double radiusPixels)
{
    const SkyMapping mapping = mappingOf(best.fit);
    const double radius = radiusPixels * radiansPerPixel;
    std::vector<std::size_t> owner(field->size(), frame.stars.size());
    std::vector<Match> found;
    for (std::size_t i = 0; i < frame.stars.size(); ++i) {
        const Complex at = mapping.planeOf(placeOf(i));
        const std::size_t star = field->nearest(at, radius);
        if (star == field->size())
            continue;
        const double distance = std::abs((*field)[star].plane - at);
        if (owner[star] == frame.stars.size()) {
            owner[star] = found.size();
            found.push_back({i, star, distance});
        } else if (distance < found[owner[star]].distance) {
            found[owner[star]] = {i, star, distance};
        }
    }
    matches = std::move(found);
}

std::vector<FitPoint> Refiner::points() const
{
    const SkyMapping mapping = mappingOf(best.fit);
    const double scale = radiansPerPixel / astrometry::arcsecond;
    std::vector<FitPoint> all;
    for (const Match &m : matches)
        if ((*field)[m.star].lone)
            all.push_back({mapping.unitsOf(placeOf(m.detected)), (*field)[m.star].plane,
                           centroidVariance(frame.stars[m.detected], scale)});
    return all;
}

double Refiner::residualPixels(const std::vector<FitPoint> &fitted) const
{
    double sum = 0.0;
    double weights = 0.0;
    const double perWeight = best.chiSquared / std::max(best.weights, 1.0);
    for (const FitPoint &p : fitted) {
        sum += p.weight * p.variance;
        weights += p.weight;
    }
    return std::sqrt(perWeight * sum / std::max(weights, 1.0)) / radiansPerPixel;
}

bool Refiner::iterate()
{
    double radius = firstRadius;
    std::vector<FitPoint> fitted;
    for (int round = 0; round < rounds; ++round) {
        const std::size_t before = matches.size();
        match(radius);
        fitted = points();
        if (fitted.size() < 4)
            return false;
        weighRobustly(best.fit, fitted);
        const auto chosen = fitBestModel(fitted);
        if (!chosen)
            return false;
        best = *chosen;
        const double next =
            std::clamp(matchSigmas * residualPixels(fitted), minRadius, firstRadius);
        const bool settled =
            round > 2 && matches.size() == before && std::abs(next - radius) < 0.05 * radius;
        radius = next;
        if (settled)
            break;
        if (round < 2 && !recentre())
            return false;
    }
    weighRobustly(best.fit, fitted);
    setNoise(fitted);
    return true;
}

void Refiner::setNoise(const std::vector<FitPoint> &fitted)
{
    const double floor =
        astrometry::arcsecond * (options.observer ? systematicError : systematicErrorWithoutSite);
    best.fit.noise = noiseOf(best.fit, fitted);
    for (SkyMapping::Rival &rival : best.fit.rivals)
        rival.noise = noiseOf(rival, fitted);
    best.fit.floor2 = floor * floor;
}

Refined Refiner::result() const
{
    Refined refined;
    refined.mapping = mappingOf(best.fit);
    double squares = 0.0;
    double counted = 0.0;
    for (const Match &m : matches) {
        const FieldStar &star = (*field)[m.star];
        const std::optional<PixelPlace> place = refined.mapping.pixelOf(star.sky);
        if (!place)
            continue;
        const double residual =
            astrometry::angleBetween(refined.mapping.skyOf(placeOf(m.detected)), star.sky) /
            astrometry::arcsecond;
        refined.matched.push_back({m.detected, star.catalogue, *place, residual});
        if (star.lone) {
            squares += residual * residual;
            counted += 1.0;
        }
    }
    refined.rms = counted > 0.0 ? std::sqrt(squares / counted) : 0.0;
    return refined;
}
} // namespace

double centroidVariance(const DetectedStar &star, double arcsecondsPerPixel)
{
    // A Gaussian's centroid over a flat background: sqrt(2) sigmas over its signal to noise.
    const double fromNoise = star.snr > 0.0 ? 0.6 * widthOf(star) / star.snr : widthOf(star);
    const double floor = star.saturated ? saturatedFloor : centroidFloor;
    const double fromCatalogue = catalogueError / arcsecondsPerPixel;
    return fromNoise * fromNoise + floor * floor + fromCatalogue * fromCatalogue;
}

std::optional<Refined> refine(const StarFrame &frame, bool mirrored,
                              const std::vector<Correspondence> &known,
                              const std::vector<std::size_t> &field,
                              const RecognitionOptions &options)
{
    Refiner refiner(frame, mirrored, options);
    if (known.size() < 3 || !refiner.start(known, field) || !refiner.iterate())
        return std::nullopt;
    return refiner.result();
}
} // namespace recognition
