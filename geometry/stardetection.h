// SPDX-License-Identifier: MIT
// Where exactly, below a pixel, is the star near a given position of a camera frame?
#pragma once

namespace cv
{
class Mat;
}

// Both functions take a frame of 8-bit depth with one channel (grey) or three, and positions in
// frame pixels: x to the right, y downwards, (0, 0) the centre of the top-left pixel. Three
// channels are taken for RGB; in a camera's frame, which is blue first, red and blue so change
// weights, which does not move a star. They return 0 on success and -1 on failure, and put the
// start position into the outputs first. A null frame fails without a message, and so does one of
// another depth or channel count; an empty one, one of more than two dimensions, and a window that
// leaves the frame (also for positions that are not numbers) are logged at critical level. They
// keep no state, never write to the frame and may run on several threads at once.

/// Intensity-weighted centroid in the 20 x 20 window whose top-left pixel is (x - 10, y - 10),
/// each truncated toward zero. Only light above 30 % of the way from the window's mean to its peak
/// counts, after a 3 x 3 median and the conversion to grey.
/// Fails with a warning when the peak is below 2.5 times the mean. Where no light is left above
/// the threshold (a black window, or one whose peak is a single count) the result is 0 with
/// coordinates that are not numbers.
int GetGravityCenter(const cv::Mat *frame, double x, double y, double &resultX, double &resultY);

/// The centroid around the brightest pixel of the 40 x 40 window whose top-left pixel is
/// (x - 20, y - 20), each truncated toward zero; that pixel itself, with 0 returned, where there
/// is no usable centroid around it.
/// Fails when the window is black. In an RGB frame the brightest pixel is sought in the grey
/// picture, so that the star wins that the user sees as the brightest, whatever its colour; the
/// black test looks at the first channel (red) and at the grey picture.
int GetPreciseStarPos(const cv::Mat *frame, double x, double y, double &resultX, double &resultY);
