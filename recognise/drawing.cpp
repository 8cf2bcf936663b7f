// SPDX-License-Identifier: MIT
// Rings, names and the pole by OpenCV's drawing.
#include "recognise/drawing.h"

#include <algorithm>
#include <cmath>
#include <opencv2/imgproc.hpp>

namespace
{
using recognition::DetectedStar;
using recognition::PixelPlace;
using recognition::Recognition;

const cv::Scalar matchedColour(90, 220, 90), otherColour(130, 130, 130), poleColour(70, 70, 255);
constexpr std::size_t maxNames = 24;
constexpr int shift = 4; // OpenCV takes sixteenths of pixels

/// Measures that fit pictures of every size.
struct Pen {
    explicit Pen(const cv::Mat &picture)
        : unit(std::max(1.0, std::min(picture.cols, picture.rows) / 960.0)),
          width(std::max(1, int(std::lround(unit))))
    {
    }
    double unit;
    int width; // pixels
};

cv::Point sixteenths(double x, double y)
{
    return {int(std::lround(x * (1 << shift))), int(std::lround(y * (1 << shift)))};
}

void ring(cv::Mat &picture, double x, double y, double radius, const cv::Scalar &colour, int width)
{
    cv::circle(picture, sixteenths(x, y), int(std::lround(radius * (1 << shift))), colour, width,
               cv::LINE_AA, shift);
}

void line(cv::Mat &picture, PixelPlace from, PixelPlace to, const Pen &pen)
{
    cv::line(picture, sixteenths(from.x, from.y), sixteenths(to.x, to.y), poleColour, pen.width,
             cv::LINE_AA, shift);
}

/// The value below which a part of the pixels is; estimated from a sample.
double quantile(const cv::Mat &pixels, double part)
{
    constexpr int step = 7;
    std::vector<int> values;
    for (int y = 0; y < pixels.rows; y += step)
        for (int x = 0; x < pixels.cols; x += step)
            for (int c = 0; c < pixels.channels(); ++c) {
                const int i = x * pixels.channels() + c;
                values.push_back(pixels.depth() == CV_8U ? pixels.ptr<std::uint8_t>(y)[i]
                                                         : pixels.ptr<std::uint16_t>(y)[i]);
            }
    const auto place = values.begin() + std::ptrdiff_t(part * double(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

cv::Mat brightened(const cv::Mat &pixels, const recognition::Extraction &extraction)
{
    constexpr double skyValue = 24.0, starSigmas = 40.0;
    const double dark = quantile(pixels, 0.02);
    const double sky = std::max(extraction.background, quantile(pixels, 0.5));
    const double white =
        std::max({sky + starSigmas * extraction.noise, quantile(pixels, 0.998), sky + 1.0});
    cv::Mat out;
    const double scale = (255.0 - skyValue) / (white - sky);
    pixels.convertTo(out, CV_8U, scale, skyValue - scale * std::max(sky, dark));
    if (out.channels() == 1)
        cv::cvtColor(out, out, cv::COLOR_GRAY2BGR);
    return out;
}

double ringRadius(const DetectedStar &star, const Pen &pen)
{
    return std::max(6.0 * pen.unit, 2.0 * star.fwhm);
}

void writeName(cv::Mat &picture, const std::string &name, double x, double y, const Pen &pen,
               const cv::Scalar &colour)
{
    const double size = 0.38 * pen.unit;
    const cv::Size extent =
        cv::getTextSize(name, cv::FONT_HERSHEY_SIMPLEX, size, pen.width, nullptr);
    const int left = std::min(int(x), std::max(0, picture.cols - extent.width - 2));
    const int base =
        std::clamp(int(y), extent.height + 2, std::max(extent.height + 2, picture.rows - 4));
    cv::putText(picture, name, {left, base}, cv::FONT_HERSHEY_SIMPLEX, size, colour, pen.width,
                cv::LINE_AA);
}

void drawStars(cv::Mat &picture, const PictureReport &report, const Pen &pen)
{
    for (const DetectedStar &star : report.extraction.stars)
        ring(picture, star.x, star.y, 0.6 * ringRadius(star, pen), otherColour, pen.width);
    if (!report.isRecognised())
        return;
    std::size_t names = 0;
    for (const recognition::MatchedStar &match : report.recognition.matched) {
        const DetectedStar &star = report.extraction.stars[match.detected];
        const double radius = ringRadius(star, pen);
        ring(picture, star.x, star.y, radius, matchedColour, pen.width);
        if (names++ < maxNames)
            writeName(picture, recognition::starName(match.catalogue), star.x + radius + 2.0,
                      star.y + 4.0 * pen.unit, pen, matchedColour);
    }
}

/// An arrow from inside the picture towards a pole outside it.
void drawArrow(cv::Mat &picture, PixelPlace pole, const Pen &pen)
{
    const double middleX = 0.5 * (picture.cols - 1), middleY = 0.5 * (picture.rows - 1);
    const double dx = pole.x - middleX, dy = pole.y - middleY;
    const double reach = std::min((middleX - 8.0 * pen.unit) / std::max(std::abs(dx), 1e-9),
                                  (middleY - 8.0 * pen.unit) / std::max(std::abs(dy), 1e-9));
    const cv::Point tip(int(middleX + reach * dx), int(middleY + reach * dy));
    const double length = std::hypot(dx, dy), back = 60.0 * pen.unit;
    const cv::Point tail(int(tip.x - back * dx / length), int(tip.y - back * dy / length));
    cv::arrowedLine(picture, tail, tip, poleColour, 2 * pen.width, cv::LINE_AA, 0, 0.3);
    writeName(picture, "pole", tail.x, tail.y, pen, poleColour);
}

void drawPole(cv::Mat &picture, const Recognition &found, const Pen &pen)
{
    const PixelPlace pole = found.pole;
    const bool inside =
        pole.x >= 0.0 && pole.y >= 0.0 && pole.x <= picture.cols - 1 && pole.y <= picture.rows - 1;
    if (!inside) {
        drawArrow(picture, pole, pen);
        return;
    }
    const double gap = 4.0 * pen.unit, arm = 22.0 * pen.unit;
    line(picture, {pole.x - arm, pole.y}, {pole.x - gap, pole.y}, pen);
    line(picture, {pole.x + gap, pole.y}, {pole.x + arm, pole.y}, pen);
    line(picture, {pole.x, pole.y - arm}, {pole.x, pole.y - gap}, pen);
    line(picture, {pole.x, pole.y + gap}, {pole.x, pole.y + arm}, pen);
    writeName(picture, "pole", pole.x + 0.4 * arm, pole.y - 0.6 * arm, pen, poleColour);
}
} // namespace

cv::Mat drawnPicture(const cv::Mat &pixels, const PictureReport &report)
{
    cv::Mat picture = brightened(pixels, report.extraction);
    const Pen pen(picture);
    drawStars(picture, report, pen);
    if (report.isRecognised())
        drawPole(picture, report.recognition, pen);
    return picture;
}
