// SPDX-License-Identifier: MIT
// Flat blocks of 8 x 8 pixels, and what in the blocks beside them has the same value.
#include "recognition/blankareas.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>

#include "recognition/skybackground.h"

namespace recognition
{
namespace
{
constexpr int block = 8;          // pixels
constexpr float flatRange = 0.5f; // values
constexpr float likeFlat = 2.5f;  // values: the seams of compressed pictures
constexpr double maxFlat = 0.6;   // part of the sky, or of the picture
constexpr int minSky = 4;         // blocks a side
constexpr float structured = -1.0f;

struct Range {
    float low, high;
};

Range rangeOf(const cv::Mat1f &image, const cv::Rect &area)
{
    Range range = {image(area.y, area.x), image(area.y, area.x)};
    for (int y = area.y; y < area.br().y; ++y) {
        const float *row = image[y];
        for (int x = area.x; x < area.br().x; ++x) {
            range.low = std::min(range.low, row[x]);
            range.high = std::max(range.high, row[x]);
        }
        if (range.high - range.low > flatRange)
            break;
    }
    return range;
}

cv::Rect blockArea(const cv::Mat1f &image, int column, int row)
{
    return cv::Rect(column * block, row * block, block, block) &
           cv::Rect(0, 0, image.cols, image.rows);
}

// Mostly two pixels of a row are enough to see that there is structure.
bool isSurelyStructured(const float *row, int columns)
{
    for (int x = 1; x < columns; ++x)
        if (std::abs(row[x] - row[x - 1]) > flatRange)
            return true;
    return false;
}

// The value of each flat block, `structured` for the others.
cv::Mat1f flatBlocks(const cv::Mat1f &image)
{
    cv::Mat1f flat((image.rows + block - 1) / block, (image.cols + block - 1) / block, structured);
    for (int j = 0; j < flat.rows; ++j) {
        const float *row = image[j * block];
        for (int i = 0; i < flat.cols; ++i) {
            if (isSurelyStructured(row + i * block, std::min(block, image.cols - i * block)))
                continue;
            const Range range = rangeOf(image, blockArea(image, i, j));
            if (range.high - range.low <= flatRange)
                flat(j, i) = range.low;
        }
    }
    return flat;
}

// The smallest rectangle, in blocks, that holds all that is not flat.
cv::Rect structuredArea(const cv::Mat1f &flat)
{
    return cv::boundingRect(cv::Mat(flat <= structured));
}

// Whether the flat blocks are a noise-free sky: between the stars, not about the sky.
bool isNoiseFreeSky(const cv::Mat1f &flat)
{
    const cv::Rect sky = structuredArea(flat);
    if (sky.width < minSky || sky.height < minSky)
        return true;
    const cv::Mat1f inside = flat(sky);
    const auto between =
        std::count_if(inside.begin(), inside.end(), [](float value) { return value > structured; });
    return double(between) > maxFlat * double(inside.total());
}

void blankLike(cv::Mat1f part, float value)
{
    for (float &pixel : part)
        if (std::abs(pixel - value) <= likeFlat)
            pixel = blankValue;
}
} // namespace

FlatAreas blankFlatAreas(cv::Mat1f &image, float saturated)
{
    const cv::Mat1f flat = flatBlocks(image);
    const auto count =
        std::count_if(flat.begin(), flat.end(), [](float value) { return value > structured; });
    if (std::size_t(count) == flat.total()) {
        const Range whole = rangeOf(image, cv::Rect(0, 0, image.cols, image.rows));
        return {whole.high - whole.low <= flatRange, 0.0};
    }
    const auto bright = std::count_if(flat.begin(), flat.end(),
                                      [saturated](float value) { return value > saturated; });
    if (count == 0 || double(bright) > maxFlat * double(flat.total()) || isNoiseFreeSky(flat))
        return {};
    for (int j = 0; j < flat.rows; ++j)
        for (int i = 0; i < flat.cols; ++i) {
            if (flat(j, i) <= structured)
                continue;
            for (int row = std::max(j - 1, 0); row <= std::min(j + 1, flat.rows - 1); ++row)
                for (int column = std::max(i - 1, 0); column <= std::min(i + 1, flat.cols - 1);
                     ++column)
                    if (flat(row, column) <= structured || (row == j && column == i))
                        blankLike(image(blockArea(image, column, row)), flat(j, i));
        }
    return {false, double(cv::countNonZero(image <= blankValue)) / double(image.total())};
}
} // namespace recognition
