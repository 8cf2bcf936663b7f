// SPDX-License-Identifier: MIT
// How is the same work done plainly, with no thought to its cost?
#pragma once

#include <QImage>
#include <QPointF>
#include <cstdint>
#include <opencv2/core.hpp>
#include <random>
#include <vector>

/// The brightest pixel and the centroid about it, each with the whole frame filtered first; the
/// frame has one channel. Gives `search` where no star is found.
QPointF plainStar(const cv::Mat &grey, QPointF search);

/// The whole frame enlarged five-fold, converted and marked, and the surroundings of star B cut
/// out of it. Keeps its large matrices between calls.
class PlainMagnifier
{
public:
    cv::Mat crop(const cv::Mat &grey, QPointF starA, QPointF starB);

private:
    cv::Mat large, largeColour;
};

/// A frame of stars over a noisy sky: a normal deviate for every pixel.
class PlainSensor
{
public:
    struct Star {
        double x, y, electrons;
    };
    void render(const std::vector<Star> &stars, double sigma, double skyElectrons, double scale,
                double readNoise, cv::Mat &grey);

private:
    std::mt19937_64 random;
    cv::Mat light;
};
