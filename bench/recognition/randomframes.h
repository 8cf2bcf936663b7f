// SPDX-License-Identifier: MIT
// Generator of small frames with any content, of all types that cameras have.
#pragma once

#include <cstdint>
#include <opencv2/core.hpp>

/// 32 to 331 pixels wide, 32 to 231 high, one or three channels of 8 or 16 bits; sometimes a part
/// of a wider frame, so that its rows are not adjacent. Flat, noise of all strengths, rectangles,
/// and, in a third of them, spots. The same number makes the same frame.
cv::Mat randomFrame(std::uint64_t number);
