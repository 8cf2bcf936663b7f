// SPDX-License-Identifier: MIT
// How do the lens and the sensor turn starlight into electrons and 8-bit values?
#pragma once

#include <cstdint>
#include <vector>

#include "virtualcamera/frame.h"
#include "virtualcamera/noise.h"
#include "virtualcamera/optics.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/skystate.h"

namespace virtualsky
{
/// Electrons per second from a star of V = 0 behind 25.4 mm at f/2: 1.27 cm^2, some 3e6 photons per
/// second and cm^2 over the sensor's full band, 40 percent of them counted.
inline constexpr double zeroMagnitudeRate = 1.5e6;
inline constexpr double fullWell = 15000.0; ///< electrons
inline constexpr double biasLevel = 8.0;    ///< 8-bit values

/// 8-bit values per electron: 0.7 at gain 50, tenfold for every 50 units.
double valuesPerElectron(double gain);
/// One sigma in 8-bit values: 3 electrons before the amplifier, 0.6 values after it.
double readNoise(double gain);
/// Electrons per second in a pixel without stars: sky and moon, dimmed by clouds.
double backgroundRate(const SkyState &state);
/// Total electrons per second of a star, dimmed by clouds.
double starRate(const SkyState &state, double vMagnitude);
/// Sigma of a star's image in pixels: lens and seeing combined.
double imageSigma(const SkyState &state);

/// Renders frames; keeps its buffers between them. Not thread-safe.
class Sensor
{
public:
    /// @param out area.width * area.height * state.channels bytes: rows from the top without
    /// padding, three channels as blue, green, red. The area must be within the sensor.
    void render(const SkyState &state, const std::vector<ImagedStar> &stars, const Area &area,
                const Exposure &exposure, std::uint8_t *out);

private:
    struct Response; // of one exposure: the factors that convert electrons to values

    void collect(const SkyState &state, const std::vector<ImagedStar> &stars, const Area &area,
                 double seconds, int channel);
    void addStar(const Point &place, double electrons, double sigma, const Area &area);
    void addHotPixels(const SkyState &state, const Area &area, double seconds);
    void prepareBackground(const Response &response);
    void digitise(const Response &response, RandomBits &random, unsigned channels,
                  std::uint8_t *out);

    std::vector<float> light;               // electrons from stars and hot pixels
    std::vector<std::uint8_t> background;   // values of a pixel without stars for each random index
    std::vector<double> profileX, profileY; // fractions of a star's light by column and row
};
} // namespace virtualsky
