// SPDX-License-Identifier: MIT
// Generators of pictures without the pole's sky.
#include "bench/recognition/falseframes.h"

#include <cmath>
#include <opencv2/imgproc.hpp>

#include "bench/recognition/randomsky.h"

namespace
{
constexpr int width = virtualsky::sensorWidth, height = virtualsky::sensorHeight;

cv::Mat1f noise(cv::RNG &random, double level, double sigma)
{
    cv::Mat1f picture(height, width);
    random.fill(picture, cv::RNG::NORMAL, level, sigma);
    return picture;
}

double evenRatio(cv::RNG &random, double low, double high)
{
    return low * std::pow(high / low, random.uniform(0.0, 1.0));
}

cv::Mat1f clouds(cv::RNG &random)
{
    cv::Mat1f out = noise(random, 0.0, random.uniform(1.0, 4.0));
    for (double size = 4.0; size < 300.0; size *= 2.0) {
        // Smoothed on a small picture: fast, and as good for what is smooth.
        const double shrink = std::max(1.0, size / 4.0);
        cv::Mat1f small(int(height / shrink) + 2, int(width / shrink) + 2);
        random.fill(small, cv::RNG::NORMAL, 0.0, 1.0);
        cv::GaussianBlur(small, small, {}, size / shrink);
        cv::Mat1f veil;
        cv::resize(small, veil, {width, height}, 0, 0, cv::INTER_CUBIC);
        cv::Mat mean, deviation;
        cv::meanStdDev(veil, mean, deviation);
        out += veil * (random.uniform(0.0, 0.2) * size / std::max(deviation.at<double>(0), 1e-9));
    }
    out += random.uniform(20.0, 160.0);
    return out;
}

cv::Mat1f hotPixels(cv::RNG &random)
{
    cv::Mat1f out = noise(random, 10.0, random.uniform(0.7, 4.0));
    for (int i = random.uniform(20, 4000); i > 0; --i)
        out(random.uniform(0, height), random.uniform(0, width)) +=
            float(evenRatio(random, 8.0, 250.0));
    return out;
}

void addSpot(cv::Mat1f &picture, double x, double y, double peak, double sigma)
{
    const int reach = int(4.0 * sigma) + 1;
    for (int j = std::max(0, int(y) - reach); j <= std::min(height - 1, int(y) + reach); ++j)
        for (int i = std::max(0, int(x) - reach); i <= std::min(width - 1, int(x) + reach); ++i)
            picture(j, i) += float(
                peak * std::exp(-((i - x) * (i - x) + (j - y) * (j - y)) / (2.0 * sigma * sigma)));
}

/// Star numbers rise by 10 to the half a magnitude, as they do in the sky.
cv::Mat1f randomStars(cv::RNG &random)
{
    const double level = random.uniform(0.7, 4.0), sigma = random.uniform(0.64, 2.5);
    cv::Mat1f out = noise(random, random.uniform(10.0, 60.0), level);
    for (int i = random.uniform(8, 260); i > 0; --i) {
        const double magnitudesAbove = -2.0 * std::log10(random.uniform(1e-6, 1.0));
        addSpot(out, random.uniform(0.0, double(width)), random.uniform(0.0, double(height)),
                3.0 * level * std::pow(10.0, 0.4 * magnitudesAbove), sigma);
    }
    return out;
}

void addHouse(cv::Mat1f &picture, cv::RNG &random, int horizon)
{
    const int w = random.uniform(60, 320), h = random.uniform(80, 500);
    const int left = random.uniform(-60, width), top = horizon - h;
    const float wall = float(random.uniform(10.0, 200.0));
    cv::rectangle(picture, {left, top, w, height - top}, cv::Scalar(double(wall)), cv::FILLED);
    const int pitch = random.uniform(14, 50), pane = random.uniform(4, pitch - 4);
    for (int y = top + 10; y < horizon - pitch; y += pitch)
        for (int x = left + 8; x < left + w - pitch; x += pitch)
            cv::rectangle(picture, {x, y, pane, pane}, cv::Scalar(random.uniform(5.0, 255.0)),
                          cv::FILLED);
}

void addTree(cv::Mat1f &picture, cv::RNG &random, int horizon)
{
    const cv::Point middle(random.uniform(0, width), horizon - random.uniform(20, 160));
    for (int i = random.uniform(200, 1200); i > 0; --i) {
        const cv::Point leaf(middle.x + int(random.gaussian(40.0)),
                             middle.y + int(random.gaussian(50.0)));
        cv::circle(picture, leaf, random.uniform(1, 6), cv::Scalar(random.uniform(10.0, 140.0)),
                   cv::FILLED);
    }
}

void addDetails(cv::Mat1f &picture, cv::RNG &random)
{
    for (int i = random.uniform(0, 12); i > 0; --i)
        cv::line(picture, {0, random.uniform(0, height)}, {width, random.uniform(0, height)},
                 cv::Scalar(random.uniform(0.0, 255.0)), random.uniform(1, 4), cv::LINE_AA);
    for (int i = random.uniform(0, 60); i > 0; --i) // lamps
        addSpot(picture, random.uniform(0.0, double(width)), random.uniform(0.0, double(height)),
                random.uniform(30.0, 900.0), random.uniform(0.7, 8.0));
    for (int i = random.uniform(0, 6); i > 0; --i)
        cv::putText(picture, "EXIT 24 h", {random.uniform(0, width), random.uniform(0, height)},
                    cv::FONT_HERSHEY_DUPLEX, random.uniform(0.4, 3.0),
                    cv::Scalar(random.uniform(0.0, 255.0)), 1, cv::LINE_AA);
}

/// By day or by night, sharp or not.
cv::Mat1f terrestrial(cv::RNG &random)
{
    cv::Mat1f out(height, width);
    const double zenith = random.uniform(5.0, 220.0), low = random.uniform(5.0, 220.0);
    for (int y = 0; y < height; ++y)
        out.row(y) = float(zenith + (low - zenith) * y / height);
    const int horizon = random.uniform(300, height);
    cv::rectangle(out, {0, horizon, width, height - horizon},
                  cv::Scalar(random.uniform(5.0, 120.0)), cv::FILLED);
    for (int i = random.uniform(0, 12); i > 0; --i)
        addHouse(out, random, horizon);
    for (int i = random.uniform(0, 5); i > 0; --i)
        addTree(out, random, horizon);
    addDetails(out, random);
    const double blur = random.uniform(0.0, 3.0);
    if (blur > 0.5)
        cv::GaussianBlur(out, out, {}, blur);
    cv::Mat1f grain(height, width);
    random.fill(grain, cv::RNG::NORMAL, 0.0, random.uniform(0.5, 5.0));
    cv::scaleAdd(out, random.uniform(0.1, 1.1), grain, out);
    return out;
}

cv::Mat asBytes(const cv::Mat1f &picture)
{
    cv::Mat out;
    picture.convertTo(out, CV_8U);
    return out;
}

cv::Mat draw(FalseKind kind, cv::RNG &random)
{
    const double sigma = random.uniform(0, 4) == 0 ? 0.0 : evenRatio(random, 0.4, 40.0);
    switch (kind) {
    case FalseKind::Noise:
        return asBytes(noise(random, random.uniform(0.0, 255.0), std::max(sigma, 0.4)));
    case FalseKind::Black:
        return asBytes(noise(random, random.uniform(0.0, 12.0), 0.1 * sigma));
    case FalseKind::Saturated:
        return asBytes(noise(random, random.uniform(235.0, 300.0), sigma));
    case FalseKind::Clouds:
        return asBytes(clouds(random));
    case FalseKind::HotPixels:
        return asBytes(hotPixels(random));
    case FalseKind::RandomStars:
        return asBytes(randomStars(random));
    case FalseKind::Terrestrial:
    case FalseKind::OtherPole:
        break;
    }
    return asBytes(terrestrial(random));
}
} // namespace

std::string nameOf(FalseKind kind)
{
    static const char *const names[falseKinds] = {"noise",       "black",         "saturated",
                                                  "clouds",      "hot pixels",    "random stars",
                                                  "terrestrial", "the other pole"};
    return names[int(kind)];
}

FalseFrame falseFrame(std::uint64_t number)
{
    const auto kind = FalseKind(number % falseKinds);
    if (kind == FalseKind::OtherPole) {
        RandomSky sky = randomSky(number);
        sky.state.channels = 1;
        SkyPainter painter;
        return {kind, painter.frameOf(sky), sky.state.latitude > 0.0};
    }
    cv::RNG random(virtualsky::frameSeed(7, number));
    return {kind, draw(kind, random), false};
}
