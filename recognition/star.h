// SPDX-License-Identifier: MIT
// What is known of a star that was found in a frame?
#pragma once

namespace recognition
{
struct DetectedStar {
    double x, y; ///< pixels of the frame, x right, y down, (0, 0) the centre of the top-left pixel
    double flux; ///< values of the frame above the background, summed over the star
    double snr;  ///< flux over its standard error from the background's noise
    double fwhm; ///< pixels, full width at half maximum without the pixel's own width
    bool saturated; ///< its top is flat: flux is a lower limit
};
} // namespace recognition
