// SPDX-License-Identifier: MIT
// Colours to grey.
#include "pictures/grey.h"

#include <opencv2/imgproc.hpp>

namespace pictures
{
cv::Mat greyOfMosaic(const cv::Mat &mosaic)
{
    // Red, green and blue have 1/4, 1/2 and 1/4 under this kernel at every pixel of the pattern.
    const cv::Matx13f kernel(0.25f, 0.5f, 0.25f);
    cv::Mat grey;
    cv::sepFilter2D(mosaic, grey, -1, kernel, kernel, cv::Point(-1, -1), 0.0,
                    cv::BORDER_REFLECT_101);
    return grey;
}

cv::Mat greyOf(const cv::Mat &picture, bool mosaic)
{
    if (picture.channels() == 1)
        return mosaic ? greyOfMosaic(picture) : picture;
    cv::Mat grey;
    cv::cvtColor(picture, grey, picture.channels() == 4 ? cv::COLOR_BGRA2GRAY : cv::COLOR_BGR2GRAY);
    return grey;
}
} // namespace pictures
