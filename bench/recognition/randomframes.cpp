// SPDX-License-Identifier: MIT
// Draws small frames at random.
#include "bench/recognition/randomframes.h"

#include <opencv2/imgproc.hpp>
#include <vector>

#include "virtualcamera/noise.h"

namespace
{
void addRectangles(cv::Mat &frame, cv::RNG &numbers, double full)
{
    for (int i = numbers.uniform(0, 40); i > 0; --i) {
        const int w = numbers.uniform(1, frame.cols), h = numbers.uniform(1, frame.rows);
        const cv::Rect area =
            cv::Rect(numbers.uniform(0, frame.cols), numbers.uniform(0, frame.rows),
                     numbers.uniform(0, 3) == 0 ? w : 1 + w / 60,
                     numbers.uniform(0, 3) == 0 ? h : 1 + h / 60) &
            cv::Rect(0, 0, frame.cols, frame.rows);
        frame(area) = cv::Scalar::all(numbers.uniform(0.0, full));
    }
}

/// Stars at random places over a quiet sky.
void addSpots(cv::Mat &frame, cv::RNG &numbers, double full)
{
    cv::Mat1f light(frame.size(), 0.0F);
    for (int i = numbers.uniform(0, 60); i > 0; --i)
        light(numbers.uniform(0, light.rows), numbers.uniform(0, light.cols)) =
            float(full * numbers.uniform(0.2, 8.0));
    cv::GaussianBlur(light, light, {}, numbers.uniform(0.7, 2.5));
    cv::Mat wide, three;
    frame.convertTo(wide, CV_MAKETYPE(CV_32F, frame.channels()));
    cv::merge(std::vector<cv::Mat>(std::size_t(frame.channels()), light), three);
    wide += three;
    wide.convertTo(frame, frame.depth());
}

/// One of six kinds of content that no sky has.
void fill(cv::Mat &frame, cv::RNG &numbers)
{
    const double full = frame.depth() == CV_8U ? 255 : 65535;
    const double middle = numbers.uniform(0.0, full), spread = numbers.uniform(0.0, full);
    const int kind = numbers.uniform(0, 6);
    frame = cv::Scalar::all(middle);
    if (kind == 1)
        numbers.fill(frame, cv::RNG::UNIFORM, 0, full + 1);
    if (kind == 2 || kind == 3)
        numbers.fill(frame, cv::RNG::NORMAL, middle, spread * (kind == 2 ? 0.02 : 0.2));
    if (kind < 4)
        return addRectangles(frame, numbers, full);
    numbers.fill(frame, cv::RNG::NORMAL, 0.1 * middle, 0.01 * full);
    addSpots(frame, numbers, full);
}
} // namespace

cv::Mat randomFrame(std::uint64_t number)
{
    constexpr int types[] = {CV_8UC1, CV_8UC3, CV_16UC1, CV_16UC3};
    cv::RNG numbers(virtualsky::frameSeed(13, number));
    const int columns = numbers.uniform(32, 332), rows = numbers.uniform(32, 232);
    cv::Mat whole(rows, columns, types[numbers.uniform(0, 4)]);
    fill(whole, numbers);
    const int cut = numbers.uniform(0, 9); // columns
    return whole(cv::Rect(0, 0, std::max(32, columns - cut), rows));
}
