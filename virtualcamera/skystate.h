// SPDX-License-Identifier: MIT
// All settings of the virtual sky, the mount under it and the camera on it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "virtualcamera/cameraaddress.h"
#include "virtualcamera/operationnames.h"

namespace virtualsky
{
enum class Picture { Sky, Black, Saturated };
enum class Pace { Exposure, Own };         ///< of files: the exposure's, or that of their own dates
enum class Mirrored { False, True, Auto }; ///< of a lens: whether the picture is

/// The scale of a lens that shows another one than the program's 30.45 arcseconds a pixel.
struct LensScale {
    enum class Kind { Native, Auto, Given };
    Kind kind = Kind::Native;  ///< Native: frames are not resampled, only binned
    double arcseconds = 30.45; ///< a pixel of the sensor, if Given
};

/// Dates are seconds since 1970-01-01T00:00:00 UTC, without leap seconds.
/// The file's keys, ranges and meanings are in docs/virtual-camera.md.
struct SkyState {
    double latitude = 40.0; ///< degrees, north positive; below 0 the camera looks at the south pole
    double longitude = 116.0; ///< degrees, east positive

    std::optional<double> date; ///< absent = now
    bool running = true;        ///< the date advances from when it was first read

    double boltAltitude = 0.6; ///< degrees, the axis above the pole
    double boltAzimuth = -1.0; ///< degrees about the vertical, the axis east of the pole
    double raAngle = 0.0;      ///< degrees, positive as the mount tracks (westwards)
    bool tracking = false;
    std::optional<double> trackingSince; ///< the time when the tracked angle is 0

    double axisX = 40.0;  ///< pixels right of the picture's centre
    double axisY = -30.0; ///< pixels below the picture's centre
    double roll = 0.0;    ///< degrees, the picture's turn about the axis point, clockwise
    unsigned channels = 1;
    bool unthrottled = false; ///< a new frame on every call
    bool label = true;        ///< draws "virtual sky" into every picture

    Source source = Source::Sky;
    std::string indi;  ///< HOST[:PORT]/DEVICE
    std::string files; ///< a file, a folder or a pattern
    Pace pace = Pace::Exposure;
    bool stream = true;  ///< INDI: the device's video, where it has one
    bool soften = false; ///< spreads stars that are a single pixel
    LensScale scale;     ///< of other sources than the sky
    Mirrored mirrored = Mirrored::False;

    std::uint32_t seed = 1;
    bool noise = true;
    unsigned hotPixels = 12;
    double fwhm = 2.5;   ///< pixels, the lens alone
    double seeing = 3.0; ///< arcseconds, full width at half maximum

    double skyMagnitude = 19.5; ///< V magnitudes per square arcsecond
    double clouds = 0.0;        ///< fraction of all light that is blocked
    double moon = 0.0;          ///< brightness of its glow, 0 none to 1 full
    bool refraction = false;
    double pressure = 1010.0;  ///< hectopascals
    double temperature = 10.0; ///< degrees Celsius
    double humidity = 0.5;     ///< 0 to 1

    OperationSet fail;
    unsigned cameras = 1;
    bool unplugged = false;
    double slow = 0.0; ///< seconds added to the time of every frame
    Picture picture = Picture::Sky;
};
} // namespace virtualsky
