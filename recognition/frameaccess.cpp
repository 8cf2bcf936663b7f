// SPDX-License-Identifier: MIT
// Reading of 8 and 16 bit frames of one and three channels.
#include "recognition/frameaccess.h"

#include <algorithm>
#include <cmath>

namespace recognition
{
namespace
{
template <typename T> void readRow(const T *row, int width, int channels, float *out)
{
    if (channels == 1) {
        for (int x = 0; x < width; ++x)
            out[x] = static_cast<float>(row[x]);
        return;
    }
    constexpr float third = 1.0f / 3.0f;
    for (int x = 0; x < width; ++x)
        out[x] = third * static_cast<float>(int(row[3 * x]) + row[3 * x + 1] + row[3 * x + 2]);
}

template <typename T> cv::Mat1f whole(const cv::Mat &frame)
{
    cv::Mat1f out(frame.rows, frame.cols);
    for (int y = 0; y < frame.rows; ++y)
        readRow(frame.ptr<T>(y), frame.cols, frame.channels(), out[y]);
    return out;
}

template <typename T> cv::Mat1f binned(const cv::Mat &frame, int bin)
{
    const int width = frame.cols / bin, height = frame.rows / bin;
    const int samples = bin * frame.channels(); // of one row in a binned pixel
    const float share = 1.0f / static_cast<float>(samples * bin);
    cv::Mat1f out(height, width);
    std::vector<unsigned> sums(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        std::fill(sums.begin(), sums.end(), 0u);
        for (int line = 0; line < bin; ++line) {
            const T *value = frame.ptr<T>(y * bin + line);
            for (unsigned &sum : sums)
                for (int i = 0; i < samples; ++i)
                    sum += *value++;
        }
        std::transform(sums.begin(), sums.end(), out[y],
                       [share](unsigned sum) { return static_cast<float>(sum) * share; });
    }
    return out;
}

template <typename T> Window window(const cv::Mat &frame, const cv::Rect &area)
{
    Window out = {cv::Mat1f(area.height, area.width), area.x, area.y, 0.0f};
    const int channels = frame.channels();
    for (int y = 0; y < area.height; ++y) {
        const T *row = frame.ptr<T>(area.y + y) + area.x * channels;
        readRow(row, area.width, channels, out.values[y]);
        out.brightest = std::max(
            out.brightest, static_cast<float>(*std::max_element(row, row + area.width * channels)));
    }
    return out;
}
} // namespace

ExtractionStatus checkFrame(const cv::Mat &frame)
{
    const bool kind = (frame.depth() == CV_8U || frame.depth() == CV_16U) &&
                      (frame.channels() == 1 || frame.channels() == 3);
    if (frame.dims != 2 || frame.empty() || !kind)
        return ExtractionStatus::BadFrame;
    if (frame.cols < minSide || frame.rows < minSide)
        return ExtractionStatus::BadFrame;
    if (double(frame.cols) * double(frame.rows) > maxPixels)
        return ExtractionStatus::TooLarge;
    return ExtractionStatus::Ok;
}

double fullScale(const cv::Mat &frame)
{
    return frame.depth() == CV_8U ? 255.0 : 65535.0;
}

cv::Mat1f binnedFrame(const cv::Mat &frame, int bin)
{
    const bool bytes = frame.depth() == CV_8U;
    if (bin == 1)
        return bytes ? whole<std::uint8_t>(frame) : whole<std::uint16_t>(frame);
    return bytes ? binned<std::uint8_t>(frame, bin) : binned<std::uint16_t>(frame, bin);
}

Window readWindow(const cv::Mat &frame, double x, double y, int radius)
{
    // Not only against overflow: NaN is outside too.
    if (!(x > -0.5 && y > -0.5 && x < frame.cols - 0.5 && y < frame.rows - 0.5))
        return {};
    const int middleX = static_cast<int>(std::lround(x)),
              middleY = static_cast<int>(std::lround(y));
    const cv::Rect around(middleX - radius, middleY - radius, 2 * radius + 1, 2 * radius + 1);
    const cv::Rect area = around & cv::Rect(0, 0, frame.cols, frame.rows);
    if (area.empty())
        return {};
    return frame.depth() == CV_8U ? window<std::uint8_t>(frame, area)
                                  : window<std::uint16_t>(frame, area);
}
} // namespace recognition
