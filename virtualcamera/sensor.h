// SPDX-License-Identifier: MIT
// What do lens and sensor make of the stars: light to electrons to 8-bit values?
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
/// Electrons a second of a star of V = 0 behind 25.4 mm at f/2: 1.27 cm^2, some 3e6 photons a
/// second and cm^2 over the sensor's whole band, 40 percent of them counted.
inline constexpr double zeroMagnitudeRate = 1.5e6;
inline constexpr double fullWell = 15000.0; ///< electrons
inline constexpr double biasLevel = 8.0;    ///< values of 0 to 255

/// 8-bit values an electron: 0.7 at gain 50, tenfold for every 50 units.
double valuesPerElectron(double gain);
/// One sigma in 8-bit values: 3 electrons before the amplifier, 0.6 values behind it.
double readNoise(double gain);
/// Electrons a second in a pixel without stars: sky and moon, behind the clouds.
double backgroundRate(const SkyState &state);
/// Electrons a second of a whole star, behind the clouds.
double starRate(const SkyState &state, double vMagnitude);
/// Sigma of a star's image in pixels: lens and seeing together.
double imageSigma(const SkyState &state);

/// Renders pictures; keeps its buffers between frames. Not for two threads at a time.
class Sensor
{
public:
    /// @param out area.width * area.height * state.channels bytes, rows from the top without
    /// padding, three channels as blue, green, red; the area lies within the sensor
    void render(const SkyState &state, const std::vector<ImagedStar> &stars, const Area &area,
                const Exposure &exposure, std::uint8_t *out);

private:
    struct Response; // of one exposure: the numbers that turn electrons into values

    void collect(const SkyState &state, const std::vector<ImagedStar> &stars, const Area &area,
                 double seconds, int channel);
    void addStar(const Point &place, double electrons, double sigma, const Area &area);
    void addHotPixels(const SkyState &state, const Area &area, double seconds);
    void prepareBackground(const Response &response);
    void digitise(const Response &response, RandomBits &random, unsigned channels,
                  std::uint8_t *out);

    std::vector<float> light;             // electrons of stars and hot pixels
    std::vector<std::uint8_t> background; // values of a pixel without stars, for every random index
    std::vector<double> profileX, profileY; // parts of a star's light by column and row
};
} // namespace virtualsky
