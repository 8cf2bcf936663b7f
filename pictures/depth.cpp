// SPDX-License-Identifier: MIT
// Scales by the range of the values.
#include "pictures/depth.h"

#include <limits>

namespace pictures
{
cv::Mat to16Bits(const cv::Mat &values)
{
    cv::Mat numbers;
    values.reshape(1).convertTo(numbers, CV_32F);
    cv::patchNaNs(numbers, 0.0);
    constexpr double greatest = std::numeric_limits<float>::max();
    numbers.setTo(0.0, (numbers > greatest) | (numbers < -greatest));
    double least = 0.0, most = 0.0;
    cv::minMaxLoc(numbers, &least, &most);
    const bool stays = least >= 0.0 && most <= 65535.0 && most > 1.0;
    const double factor = stays || !(most > least) ? 1.0 : 65535.0 / (most - least);
    cv::Mat out;
    numbers.convertTo(out, CV_16U, factor, stays ? 0.0 : -least * factor);
    return out.reshape(values.channels());
}
} // namespace pictures
