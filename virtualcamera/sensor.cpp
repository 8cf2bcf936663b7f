// SPDX-License-Identifier: MIT
// Renders one frame: spreads the stars over the pixels, adds noise, digitises.
#include "virtualcamera/sensor.h"

#include <algorithm>
#include <cmath>

namespace virtualsky
{
namespace
{
constexpr double gaussianWidth = 2.3548200450309493; // full width at half maximum / sigma
constexpr double fullMoonMagnitude = 17.0;           // per square arcsecond
constexpr double faintestTrace = 0.02; // electrons in a pixel; fainter light is ignored
constexpr int largestRadius = 60;      // pixels

double fluxRatio(double magnitude)
{
    return std::pow(10.0, -0.4 * magnitude);
}

// A star's brightness in blue, green and red relative to green, from the slope of a black body.
double colourFactor(double bMinusV, int channel)
{
    constexpr double slope[3] = {-0.8, 0.0, 0.5};
    constexpr double sunColour = 0.65;
    return std::pow(10.0, 0.4 * slope[channel] * (bMinusV - sunColour));
}

// Fractions of a Gaussian's light at `centre` in the pixels first .. first + n - 1.
void fillProfile(std::vector<double> &profile, double centre, double sigma, int first, int n)
{
    const double k = 1.0 / (sigma * std::sqrt(2.0));
    profile.resize(static_cast<std::size_t>(n));
    double before = std::erf((first - 0.5 - centre) * k);
    for (int i = 0; i < n; ++i) {
        const double after = std::erf((first + i + 0.5 - centre) * k);
        profile[static_cast<std::size_t>(i)] = 0.5 * (after - before);
        before = after;
    }
}

// The radius at which a star's light falls below `faintestTrace`.
int traceRadius(double electrons, double sigma)
{
    const double ratio = electrons / (2.0 * pi * sigma * sigma * faintestTrace);
    if (!(ratio > 1.0))
        return 0;
    const double radius = std::min(sigma * std::sqrt(2.0 * std::log(ratio)) + 1.0, 1.0e3);
    return std::min(static_cast<int>(std::ceil(radius)), largestRadius);
}

std::uint8_t toByte(float value)
{
    return value > 0.0f ? static_cast<std::uint8_t>(std::min(value + 0.5f, 255.0f))
                        : std::uint8_t{0};
}
} // namespace

double valuesPerElectron(double gain)
{
    return 0.7 * std::pow(10.0, (gain - 50.0) / 50.0);
}

double readNoise(double gain)
{
    return std::hypot(3.0 * valuesPerElectron(gain), 0.6);
}

double backgroundRate(const SkyState &state)
{
    const double perArcsecond =
        fluxRatio(state.skyMagnitude) + state.moon * fluxRatio(fullMoonMagnitude);
    return zeroMagnitudeRate * perArcsecond * pixelScale * pixelScale * (1.0 - state.clouds);
}

double starRate(const SkyState &state, double vMagnitude)
{
    return zeroMagnitudeRate * fluxRatio(vMagnitude) * (1.0 - state.clouds);
}

double imageSigma(const SkyState &state)
{
    return std::hypot(state.fwhm, state.seeing / pixelScale) / gaussianWidth;
}

struct Sensor::Response {
    float scale;        // values per electron
    float readVariance; // values squared, 0 without noise
    float shotVariance; // values squared per electron, 0 without noise
    float skyElectrons; // in each pixel
};

void Sensor::addStar(const Point &place, double electrons, double sigma, const Area &area)
{
    const int radius = traceRadius(electrons, sigma);
    const int middleX = static_cast<int>(std::lround(place.x));
    const int middleY = static_cast<int>(std::lround(place.y));
    const int left = std::max(middleX - radius, area.x);
    const int right = std::min(middleX + radius, area.x + area.width - 1);
    const int top = std::max(middleY - radius, area.y);
    const int bottom = std::min(middleY + radius, area.y + area.height - 1);
    if (left > right || top > bottom)
        return;
    fillProfile(profileX, place.x, sigma, left, right - left + 1);
    fillProfile(profileY, place.y, sigma, top, bottom - top + 1);
    for (int y = top; y <= bottom; ++y) {
        const double inRow = electrons * profileY[static_cast<std::size_t>(y - top)];
        float *row =
            light.data() + static_cast<std::ptrdiff_t>(y - area.y) * area.width + (left - area.x);
        for (const double part : profileX)
            *row++ += static_cast<float>(inRow * part);
    }
}

void Sensor::addHotPixels(const SkyState &state, const Area &area, double seconds)
{
    RandomBits random(frameSeed(state.seed, 0));
    for (unsigned i = 0; i < state.hotPixels; ++i) {
        const int x = static_cast<int>(random.uniform() * sensorWidth);
        const int y = static_cast<int>(random.uniform() * sensorHeight);
        // 300 to 3000 electrons per second, uniformly distributed in log brightness.
        const double rate = 300.0 * std::pow(10.0, random.uniform());
        const bool inside =
            x >= area.x && y >= area.y && x < area.x + area.width && y < area.y + area.height;
        if (inside)
            light[static_cast<std::size_t>(y - area.y) * static_cast<std::size_t>(area.width) +
                  static_cast<std::size_t>(x - area.x)] += static_cast<float>(rate * seconds);
    }
}

void Sensor::collect(const SkyState &state, const std::vector<ImagedStar> &stars, const Area &area,
                     double seconds, int channel)
{
    // Every pixel was reset to 0 when it was last digitised.
    light.resize(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height));
    const double sigma = imageSigma(state);
    for (const ImagedStar &star : stars) {
        const double colour = state.channels == 3 ? colourFactor(star.bMinusV, channel) : 1.0;
        addStar(star.place, starRate(state, star.vMagnitude) * colour * seconds, sigma, area);
    }
    addHotPixels(state, area, seconds);
}

void Sensor::prepareBackground(const Response &response)
{
    const std::vector<float> &normal = normalTable();
    const float level = static_cast<float>(biasLevel) + response.skyElectrons * response.scale;
    const float sigma =
        std::sqrt(response.readVariance + response.skyElectrons * response.shotVariance);
    background.resize(normal.size());
    std::transform(normal.begin(), normal.end(), background.begin(),
                   [level, sigma](float n) { return toByte(level + sigma * n); });
}

void Sensor::digitise(const Response &response, RandomBits &random, unsigned channels,
                      std::uint8_t *out)
{
    const float *normal = normalTable().data();
    const std::uint8_t *dark = background.data();
    const auto lit = [&](float star, std::size_t index) {
        const float electrons =
            std::min(star + response.skyElectrons, static_cast<float>(fullWell));
        const float sigma = std::sqrt(response.readVariance + electrons * response.shotVariance);
        return toByte(static_cast<float>(biasLevel) + electrons * response.scale +
                      sigma * normal[index]);
    };
    float *star = light.data();
    for (std::size_t remaining = light.size(); remaining > 0;) {
        constexpr std::size_t indicesInBits = 4;
        std::uint64_t bits = random.next();
        const std::size_t pixels = std::min(remaining, indicesInBits);
        for (std::size_t i = 0; i < pixels; ++i) {
            const std::size_t index = bits & 0xffffu;
            bits >>= 16;
            if (*star == 0.0f) {
                *out = dark[index];
            } else {
                *out = lit(*star, index);
                *star = 0.0f; // reset for the next frame
            }
            ++star;
            out += channels;
        }
        remaining -= pixels;
    }
}

void Sensor::render(const SkyState &state, const std::vector<ImagedStar> &stars, const Area &area,
                    const Exposure &exposure, std::uint8_t *out)
{
    const std::size_t pixels =
        static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height);
    if (state.picture != Picture::Sky) {
        std::fill_n(out, pixels * state.channels,
                    static_cast<std::uint8_t>(state.picture == Picture::Black ? 0 : 255));
        return;
    }
    const double scale = valuesPerElectron(exposure.gain);
    const double noise = state.noise ? 1.0 : 0.0;
    const Response response = {
        static_cast<float>(scale),
        static_cast<float>(noise * readNoise(exposure.gain) * readNoise(exposure.gain)),
        static_cast<float>(noise * scale * scale),
        static_cast<float>(std::min(backgroundRate(state) * exposure.seconds, fullWell))};
    prepareBackground(response);
    RandomBits random(frameSeed(state.seed, exposure.frameNumber));
    for (unsigned channel = 0; channel < state.channels; ++channel) {
        collect(state, stars, area, exposure.seconds, static_cast<int>(channel));
        digitise(response, random, state.channels, out + channel);
    }
}
} // namespace virtualsky
