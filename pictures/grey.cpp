// SPDX-License-Identifier: MIT
// Colours to grey.
#include "pictures/grey.h"

#include <algorithm>
#include <iterator>
#include <opencv2/imgproc.hpp>
#include <string_view>

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

std::string shiftedPattern(const std::string &pattern, int columns, int rows)
{
    static constexpr std::string_view known[] = {"RGGB", "GRBG", "GBRG", "BGGR"};
    if (std::find(std::begin(known), std::end(known), pattern) == std::end(known))
        return {};
    std::string out;
    for (const int place : {0, 1, 2, 3}) {
        const int row = (place / 2 + rows % 2 + 2) % 2, column = (place + columns % 2 + 2) % 2;
        out += pattern.at(static_cast<std::size_t>(row * 2) + static_cast<std::size_t>(column));
    }
    return out;
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
