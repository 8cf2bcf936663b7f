// SPDX-License-Identifier: MIT
// Sequential odds of a pose, with a running correction of shift, scale and rotation.
#include "recognition/verification.h"

#include <algorithm>
#include <cmath>
#include <complex>

namespace recognition
{
namespace
{
using astrometry::Vector3;
using Complex = std::complex<double>;

constexpr std::size_t mostStars = 80;     // of the frame, that odds are computed from
constexpr double distractors = 0.4;       // part of the frame's stars that need be in no catalogue
constexpr double lensDistortion = 0.0015; // pixels a pixel of distance from the known stars
constexpr double searchSigmas = 3.5;
constexpr std::size_t quickStars = 12;
constexpr std::size_t quickEmpty = 7; // so many without a hit are enough
constexpr std::size_t quickHits = 2;
constexpr int densityColumns = 6;
constexpr int densityRows = 5;

// How many of the catalogue's brightest are compared with n stars of a frame: three times as many
// as the frame would show if its part of the sky were as full as the mean.
std::size_t brightestFor(std::size_t n, const Pose &pose, const FrameStars &frame,
                         const PoleStars &stars)
{
    const double capArea = 2.0 * astrometry::pi * (1.0 - std::cos(catalogueRadius));
    const double frameArea = frame.area() / (pose.focalLength * pose.focalLength);
    const double wanted =
        (3.0 * static_cast<double>(n) + 10.0) * std::max(capArea / frameArea, 1.0);
    return std::min(stars.size(), static_cast<std::size_t>(wanted));
}

// Least squares of residual = alpha w + beta, one star after the other. w is the star's place in
// half diagonals.
class RunningCorrection
{
public:
    void add(Complex w, Complex residual, double variance)
    {
        const double weight = 1.0 / variance;
        nww += weight * std::norm(w);
        nw += weight * w;
        n += weight;
        bw += weight * std::conj(w) * residual;
        b += weight * residual;
    }
    Complex predicted(Complex w) const
    {
        const double d = determinant();
        const Complex alpha = (n * bw - std::conj(nw) * b) / d;
        const Complex beta = (nww * b - nw * bw) / d;
        return alpha * w + beta;
    }
    double variance(Complex w) const
    {
        return (n * std::norm(w) + nww - 2.0 * std::real(nw * std::conj(w))) / determinant();
    }

private:
    double determinant() const { return nww * n - std::norm(nw); }

    double nww = 0.0, n = 0.0;
    Complex nw = 0.0, bw = 0.0, b = 0.0;
};

Complex toComplex(CentredPixel p)
{
    return {p.x, p.y};
}

class Verifier
{
public:
    Verifier(const Hypothesis &hypothesis, const FrameStars &frameStars, const PoleStars &poleStars,
             const std::vector<Vector3> &starPlaces);

    bool seemsRight();
    Verification run();

private:
    struct Prediction {
        Complex pixel;
        double variance; // of one axis, pixels squared
    };
    struct Nearest {
        std::size_t star = 0;
        Complex residual = 0.0;
        double density = 0.0; // of it alone
        double sum = 0.0;     // of all catalogue stars
    };

    bool ofTriangle(std::size_t star) const;
    double ownVariance(Complex pixel) const;
    Prediction predict(std::size_t star) const;
    Nearest nearest(const Prediction &prediction) const;
    std::size_t expectedStars() const;

    const Hypothesis &given;
    const FrameStars &frame;
    const PoleStars &stars;
    const std::vector<Vector3> &places;
    std::size_t brightest;
    Complex middle; // of the triangle
    RunningCorrection correction;
    std::vector<std::size_t> claimed;
};

Verifier::Verifier(const Hypothesis &hypothesis, const FrameStars &frameStars,
                   const PoleStars &poleStars, const std::vector<Vector3> &starPlaces)
    : given(hypothesis),
      frame(frameStars),
      stars(poleStars),
      places(starPlaces),
      brightest(brightestFor(std::min(frame.size(), mostStars), given.pose, frame, stars)),
      middle(0.0)
{
    for (const auto &[star, catalogue] : given.triangle)
        middle += toComplex(frame.at(star, given.mirrored)) / 3.0;
    for (const auto &[star, catalogue] : given.triangle) {
        const Complex pixel = toComplex(frame.at(star, given.mirrored));
        const auto where = given.pose.pixelOf(places[catalogue]);
        const Complex residual = where ? pixel - toComplex(*where) : Complex(0.0);
        correction.add(pixel / frame.radius(), residual, ownVariance(pixel));
    }
}

bool Verifier::ofTriangle(std::size_t star) const
{
    return std::any_of(given.triangle.begin(), given.triangle.end(),
                       [star](const Pair &pair) { return pair.first == star; });
}

double Verifier::ownVariance(Complex pixel) const
{
    const double distortion = lensDistortion * std::abs(pixel - middle);
    return frame.centroidError() * frame.centroidError() + distortion * distortion;
}

Verifier::Prediction Verifier::predict(std::size_t star) const
{
    const Complex pixel = toComplex(frame.at(star, given.mirrored));
    const Complex w = pixel / frame.radius();
    return {pixel - correction.predicted(w), ownVariance(pixel) + correction.variance(w)};
}

Verifier::Nearest Verifier::nearest(const Prediction &prediction) const
{
    Nearest best;
    const double sigma = std::sqrt(prediction.variance);
    const Vector3 direction = given.pose.skyOf({prediction.pixel.real(), prediction.pixel.imag()});
    const double reach = searchSigmas * sigma;
    stars.visitNear(direction, reach / given.pose.focalLength, [&](std::size_t i) {
        if (i >= brightest)
            return;
        const auto where = given.pose.pixelOf(places[i]);
        if (!where)
            return;
        const Complex residual = prediction.pixel - toComplex(*where);
        if (std::norm(residual) > reach * reach)
            return;
        if (std::find(claimed.begin(), claimed.end(), i) != claimed.end())
            return;
        const double density = std::exp(-0.5 * std::norm(residual) / prediction.variance) /
                               (2.0 * astrometry::pi * prediction.variance);
        best.sum += density;
        if (density > best.density) {
            best.density = density;
            best.star = i;
            best.residual = residual;
        }
    });
    return best;
}

bool Verifier::seemsRight()
{
    for (const auto &[star, catalogue] : given.triangle)
        claimed.push_back(catalogue);
    std::size_t looked = 0;
    std::size_t hits = 0;
    for (std::size_t i = 0; i < frame.size() && looked < quickStars; ++i) {
        if (ofTriangle(i))
            continue;
        ++looked;
        const Nearest found = nearest(predict(i));
        if (found.density > 0.0) {
            claimed.push_back(found.star);
            if (++hits >= quickHits)
                return true;
        }
        if (looked >= quickEmpty && hits == 0)
            return false;
    }
    return false;
}

// How many catalogue stars can lie in the frame: at least as many as do, for the density's sake.
std::size_t Verifier::expectedStars() const
{
    const Vector3 &forward = given.pose.cameraFromSky.rows[2];
    const double leastCosine = std::cos(std::atan(1.1 * frame.radius() / given.pose.focalLength));
    const auto last = places.begin() + static_cast<std::ptrdiff_t>(brightest);
    const auto n = std::count_if(places.begin(), last,
                                 [&](const Vector3 &p) { return dot(p, forward) > leastCosine; });
    return std::max<std::size_t>(static_cast<std::size_t>(n), 3);
}

Verification Verifier::run()
{
    Verification result;
    result.pairs.assign(given.triangle.begin(), given.triangle.end());
    claimed.clear();
    for (const auto &[star, catalogue] : given.triangle)
        claimed.push_back(catalogue);
    const auto expected = static_cast<double>(expectedStars());
    const std::size_t n = std::min(frame.size(), mostStars);
    for (std::size_t i = 0; i < n; ++i) {
        if (ofTriangle(i))
            continue;
        const Prediction prediction = predict(i);
        const Nearest found = nearest(prediction);
        const double atRandom = frame.randomDensity(i);
        const double stray = distractors * atRandom;
        const double odds = (stray + (1.0 - distractors) * found.sum / expected) / atRandom;
        result.logOdds += std::log(odds);
        if ((1.0 - distractors) * found.density / expected <= stray)
            continue;
        claimed.push_back(found.star);
        result.pairs.emplace_back(i, found.star);
        // The residual against the pose itself, not against what has been corrected already.
        const Complex pixel = toComplex(frame.at(i, given.mirrored));
        correction.add(pixel / frame.radius(), found.residual + (pixel - prediction.pixel),
                       ownVariance(pixel));
    }
    return result;
}
} // namespace

FrameStars::FrameStars(std::vector<CentredPixel> pixels, int width, int height,
                       double centroidError)
    : stars(std::move(pixels)),
      framePixels(static_cast<double>(width) * height),
      halfDiagonal(0.5 * std::hypot(width, height)),
      sigma(centroidError)
{
    estimateDensities(width, height);
}

void FrameStars::estimateDensities(int width, int height)
{
    std::array<double, densityColumns *densityRows> counts = {};
    const auto cellOf = [&](CentredPixel p) {
        const int column = static_cast<int>((p.x / width + 0.5) * densityColumns);
        const int row = static_cast<int>((p.y / height + 0.5) * densityRows);
        return static_cast<std::size_t>(std::clamp(row, 0, densityRows - 1) * densityColumns +
                                        std::clamp(column, 0, densityColumns - 1));
    };
    for (const CentredPixel &p : stars)
        counts[cellOf(p)] += 1.0;
    const double cells = densityColumns * densityRows;
    for (const CentredPixel &p : stars) {
        const double share = counts[cellOf(p)] / static_cast<double>(stars.size());
        densities.push_back((0.5 + 0.5 * share * cells) / framePixels);
    }
}

bool seemsRight(const Hypothesis &hypothesis, const FrameStars &frame, const PoleStars &stars,
                const std::vector<Vector3> &places)
{
    return Verifier(hypothesis, frame, stars, places).seemsRight();
}

Verification verify(const Hypothesis &hypothesis, const FrameStars &frame, const PoleStars &stars,
                    const std::vector<Vector3> &places)
{
    return Verifier(hypothesis, frame, stars, places).run();
}
} // namespace recognition
