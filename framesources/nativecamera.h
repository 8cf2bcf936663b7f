// SPDX-License-Identifier: MIT
// What does a camera of any kind give before its frames are made fit for the program?
#pragma once

#include <functional>
#include <opencv2/core.hpp>
#include <optional>
#include <string>

namespace framesources
{
/// Takes one line for the log, without its end.
using Report = std::function<void(const std::string &)>;

struct NativeFrame {
    cv::Mat pixels;      ///< 8 or 16 bit, one channel or three (blue green red)
    bool mosaic = false; ///< one channel of a Bayer sensor
    int binning = 1;     ///< sensor pixels that make one, each way
    cv::Size sensor;     ///< all its pixels, of which these may be a part; other lenses differ
    std::optional<double> date; ///< middle of the exposure, UTC seconds since 1970
    std::string pattern{};      ///< of a mosaic, from the top left: "RGGB", ...; empty: unknown
};

/// The program's settings; the camera maps them to its own.
struct Wish {
    double exposureSeconds = 0.2;
    double gain = 50.0;  ///< 0 to 200
    double scale = 0.0;  ///< arcseconds a pixel of the sensor; 0 = unknown
    bool whole = false;  ///< the lens is still unknown: as much of the sky as there is
    bool wanted = false; ///< somebody fetches frames
};

/// One thread calls `next` and the destructor; `isPresent` may be called from any.
class NativeCamera
{
public:
    virtual ~NativeCamera() = default;

    /// Waits a moment, at most some tenths of a second, for the next frame.
    virtual std::optional<NativeFrame> next(const Wish &wish) = 0;

    /// False once it is known that there is no such camera, and while it is lost.
    virtual bool isPresent() const = 0;
};
} // namespace framesources
