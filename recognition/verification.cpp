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

constexpr std::size_t maxOddsStars = 80; // of the frame, that odds are computed from
constexpr double distractors = 0.55;     // part of the frame's stars that need be in no catalogue
const double logOfStray = std::log(distractors); // odds of a star that is in no catalogue
constexpr double lensDistortion = 0.0015;        // pixels a pixel of distance from the known stars
constexpr double searchSigmas = 3.5;
constexpr double hopeless = -7.0;      // of the logarithm of the odds: given up
constexpr std::size_t trialStars = 18; // by which the odds must have risen
constexpr double minTrialOdds = 2.0;   // of the logarithm
constexpr double unevenness = 1.5;     // of the density of stars, in the trial
constexpr double minExpected = 3.0;    // stars in a frame
constexpr int densityColumns = 6;
constexpr int densityRows = 5;

// Of the catalogue's part of one hemisphere, steradians.
const double capArea = 2.0 * astrometry::pi * (1.0 - std::cos(catalogueRadius));

// How many of the catalogue's brightest are compared with n stars of a frame: three times as many
// as the frame would show if its part of the sky were as full as the mean.
std::size_t brightestFor(std::size_t n, const Pose &pose, const FrameStars &frame,
                         const PoleStars &stars)
{
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
    /// After two stars or more, and again after each one.
    void solve()
    {
        inverse = 1.0 / (nww * n - std::norm(nw));
        alpha = (n * bw - std::conj(nw) * b) * inverse;
        beta = (nww * b - nw * bw) * inverse;
    }
    Complex predicted(Complex w) const
    {
        return {alpha.real() * w.real() - alpha.imag() * w.imag() + beta.real(),
                alpha.real() * w.imag() + alpha.imag() * w.real() + beta.imag()};
    }
    double variance(Complex w) const
    {
        const double across = nw.real() * w.real() + nw.imag() * w.imag();
        return (n * std::norm(w) + nww - 2.0 * across) * inverse;
    }

private:
    double nww = 0.0, n = 0.0;
    Complex nw = 0.0, bw = 0.0, b = 0.0;
    Complex alpha = 0.0, beta = 0.0;
    double inverse = 0.0; // of the determinant
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

    bool passesTrial();
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
    double addStar(std::size_t i, double expected, std::vector<Pair> &pairs);

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
      brightest(brightestFor(std::min(frame.size(), maxOddsStars), given.pose, frame, stars)),
      middle(0.0)
{
    for (const auto &[star, catalogue] : given.triangle)
        middle += toComplex(frame.at(star, given.mirrored)) / 3.0;
    for (const auto &[star, catalogue] : given.triangle) {
        claimed.push_back(catalogue);
        const Complex pixel = toComplex(frame.at(star, given.mirrored));
        const auto where = given.pose.pixelOf(places[catalogue]);
        const Complex residual = where ? pixel - toComplex(*where) : Complex(0.0);
        correction.add(pixel / frame.radius(), residual, ownVariance(pixel));
    }
    correction.solve();
}

bool Verifier::ofTriangle(std::size_t star) const
{
    return std::any_of(given.triangle.begin(), given.triangle.end(),
                       [star](const Pair &pair) { return pair.first == star; });
}

double Verifier::ownVariance(Complex pixel) const
{
    return frame.centroidError() * frame.centroidError() +
           lensDistortion * lensDistortion * std::norm(pixel - middle);
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
    const double angle = reach / given.pose.focalLength;
    stars.visitNear(direction, angle, [&](std::size_t i) {
        if (i >= brightest || std::abs(places[i].x - direction.x) > angle ||
            std::abs(places[i].y - direction.y) > angle)
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

// How many catalogue stars can be in the frame: for the density, at least as many as there are.
std::size_t Verifier::expectedStars() const
{
    const Vector3 &forward = given.pose.cameraFromSky.rows[2];
    const double minCosine = std::cos(std::atan(1.1 * frame.radius() / given.pose.focalLength));
    const auto last = places.begin() + static_cast<std::ptrdiff_t>(brightest);
    const auto n = std::count_if(places.begin(), last,
                                 [&](const Vector3 &p) { return dot(p, forward) > minCosine; });
    return static_cast<std::size_t>(n);
}

// The odds of one more star; if it is more likely a catalogue star than not, it counts as that one.
double Verifier::addStar(std::size_t i, double expected, std::vector<Pair> &pairs)
{
    const Prediction prediction = predict(i);
    const Nearest found = nearest(prediction);
    if (found.sum == 0.0)
        return logOfStray;
    const double atRandom = frame.randomDensity(i);
    const double stray = distractors * atRandom;
    if ((1.0 - distractors) * found.density / expected > stray) {
        claimed.push_back(found.star);
        pairs.emplace_back(i, found.star);
        // The residual against the pose itself, not against what has been corrected already.
        const Complex pixel = toComplex(frame.at(i, given.mirrored));
        correction.add(pixel / frame.radius(), found.residual + (pixel - prediction.pixel),
                       ownVariance(pixel));
        correction.solve();
    }
    return std::log((stray + (1.0 - distractors) * found.sum / expected) / atRandom);
}

bool Verifier::passesTrial()
{
    const double cap = capArea * given.pose.focalLength * given.pose.focalLength; // pixels
    const double expected =
        std::max(static_cast<double>(brightest) * std::min(unevenness * frame.area() / cap, 1.0),
                 minExpected);
    std::vector<Pair> pairs;
    double logOdds = 0.0;
    std::size_t looked = 0;
    for (std::size_t i = 0; i < frame.size() && looked < trialStars; ++i) {
        if (ofTriangle(i))
            continue;
        ++looked;
        logOdds += addStar(i, expected, pairs);
        if (logOdds < hopeless)
            return false;
    }
    return logOdds >= minTrialOdds;
}

Verification Verifier::run()
{
    Verification result;
    result.pairs.assign(given.triangle.begin(), given.triangle.end());
    const double expected = std::max(static_cast<double>(expectedStars()), minExpected);
    const std::size_t n = std::min(frame.size(), maxOddsStars);
    for (std::size_t i = 0; i < n; ++i)
        if (!ofTriangle(i))
            result.logOdds += addStar(i, expected, result.pairs);
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

Verification verify(const Hypothesis &hypothesis, const FrameStars &frame, const PoleStars &stars,
                    const std::vector<Vector3> &places)
{
    if (!Verifier(hypothesis, frame, stars, places).passesTrial())
        return {hopeless, {}};
    return Verifier(hypothesis, frame, stars, places).run();
}
} // namespace recognition
