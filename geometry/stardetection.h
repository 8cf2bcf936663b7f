// SPDX-License-Identifier: MIT
// Where, to sub-pixel accuracy, is the star near a given position of a camera frame?
#pragma once

namespace cv
{
class Mat;
}

// Both functions take a frame of 8-bit depth with one channel (grey) or three, and positions in
// frame pixels: x to the right, y downwards, (0, 0) the centre of the top-left pixel. Three
// channels are read as RGB. In a camera's frame, which is BGR, red and blue therefore swap weights,
// which does not move a star. The functions return 0 on success and -1 on failure, and first set
// the outputs to the start position. A null frame and one of another depth or channel count fail
// without a message. An empty frame, one of more than two dimensions, and a window that extends
// beyond the frame (also for NaN positions) are logged at critical level. The functions keep no
// state, never write to the frame and may run on several threads at once.

/// Intensity-weighted centroid in the 20 x 20 window whose top-left pixel is (x - 10, y - 10), each
/// truncated toward zero. Only light above 30 % of the way from the window's mean to its peak
/// counts, after a 3 x 3 median and the conversion to grey. Fails with a warning if the peak is
/// below 2.5 times the mean. If no light is left above the threshold (a black window, or one whose
/// peak is a single count), returns 0 with NaN coordinates.
int GetGravityCenter(const cv::Mat *frame, double x, double y, double &resultX, double &resultY);

/// The centroid around the brightest pixel of the 40 x 40 window whose top-left pixel is
/// (x - 20, y - 20), each truncated toward zero. If there is no usable centroid, that pixel itself,
/// with 0 returned. Fails if the window is black. In an RGB frame the brightest pixel is searched
/// for in the grey picture, so that the star that looks brightest to the user wins, whatever its
/// colour. The black test checks the first channel (red) and the grey picture.
int GetPreciseStarPos(const cv::Mat *frame, double x, double y, double &resultX, double &resultY);
