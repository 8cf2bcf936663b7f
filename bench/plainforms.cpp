// SPDX-License-Identifier: MIT
// Plain implementations that the program's own code is compared with.
#include "bench/plainforms.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>

namespace
{
bool plainCentroid(const cv::Mat &grey, QPointF start, QPointF &found)
{
    cv::Mat filtered;
    cv::medianBlur(grey, filtered, 3);
    const cv::Rect window(int(start.x() - 10), int(start.y() - 10), 20, 20);
    const cv::Mat star = filtered(window).clone();
    double peak = 0;
    cv::minMaxLoc(star, nullptr, &peak);
    const double mean = cv::mean(star)[0];
    if (peak / mean < 2.5)
        return false;
    cv::Mat excess;
    cv::subtract(star, cv::Scalar(mean + 0.3 * (peak - mean)), excess);
    const cv::Moments moments = cv::moments(excess, false);
    found = {moments.m10 / moments.m00 + window.x, moments.m01 / moments.m00 + window.y};
    return true;
}

void drawTicks(cv::Mat &picture, cv::Point p, const cv::Scalar &colour)
{
    for (const cv::Point way :
         {cv::Point(-1, 0), cv::Point(1, 0), cv::Point(0, -1), cv::Point(0, 1)})
        cv::line(picture, p + 6 * way, p + 11 * way, colour, 1, cv::LINE_8);
}
} // namespace

QPointF plainStar(const cv::Mat &grey, QPointF search)
{
    cv::Mat filtered;
    cv::medianBlur(grey, filtered, 3);
    const cv::Rect window(int(search.x() - 20), int(search.y() - 20), 40, 40);
    const cv::Mat surroundings = filtered(window).clone();
    cv::Point brightest;
    double peak = 0;
    cv::minMaxLoc(surroundings, nullptr, &peak, nullptr, &brightest);
    if (peak == 0.0)
        return search;
    QPointF found(brightest.x + window.x, brightest.y + window.y);
    plainCentroid(grey, found, found);
    return found;
}

cv::Mat PlainMagnifier::crop(const cv::Mat &grey, QPointF starA, QPointF starB)
{
    cv::resize(grey, large, cv::Size(), 5, 5, cv::INTER_LINEAR);
    cv::cvtColor(large, largeColour, cv::COLOR_GRAY2BGR);
    const cv::Point a(int(5 * starA.x()), int(5 * starA.y()));
    const cv::Point b(int(5 * starB.x()), int(5 * starB.y()));
    const cv::Scalar blue(255, 0, 0), green(0, 255, 0);
    cv::circle(largeColour, a, 1, blue, cv::FILLED, cv::LINE_AA);
    cv::circle(largeColour, a, 8, blue, 1, cv::LINE_AA);
    drawTicks(largeColour, a, blue);
    cv::circle(largeColour, b, 2, green, cv::FILLED, cv::LINE_AA);
    drawTicks(largeColour, b, green);
    return largeColour(cv::Rect(b.x - 100, b.y - 100, 200, 200)).clone();
}

void PlainSensor::render(const std::vector<Star> &stars, double sigma, double skyElectrons,
                         double scale, double readNoise, cv::Mat &grey)
{
    light = cv::Mat(grey.size(), CV_64FC1, cv::Scalar(skyElectrons));
    constexpr int radius = 20;
    const double peakPart = 1.0 / (2.0 * M_PI * sigma * sigma);
    for (const Star &star : stars) {
        const int left = std::max(int(star.x) - radius, 0);
        const int right = std::min(int(star.x) + radius, grey.cols - 1);
        const int top = std::max(int(star.y) - radius, 0);
        const int bottom = std::min(int(star.y) + radius, grey.rows - 1);
        for (int y = top; y <= bottom; ++y)
            for (int x = left; x <= right; ++x)
                light.at<double>(y, x) +=
                    star.electrons * peakPart *
                    std::exp(-0.5 * std::pow(std::hypot(x - star.x, y - star.y) / sigma, 2));
    }
    std::normal_distribution<double> normal;
    for (int y = 0; y < grey.rows; ++y)
        for (int x = 0; x < grey.cols; ++x) {
            const double electrons = std::min(light.at<double>(y, x), 15000.0);
            const double noise = std::hypot(readNoise, scale * std::sqrt(electrons));
            const double value = 8.0 + scale * electrons + noise * normal(random);
            grey.at<uchar>(y, x) = cv::saturate_cast<uchar>(value);
        }
}
