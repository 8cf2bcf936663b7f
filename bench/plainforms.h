// SPDX-License-Identifier: MIT
// How is the same work done in a straightforward way, without optimisation?
#pragma once

#include <QImage>
#include <QPointF>
#include <cstdint>
#include <opencv2/core.hpp>
#include <random>
#include <vector>

/// The brightest pixel and the centroid about it, each after filtering the full frame; the frame
/// has one channel. Returns `search` if no star is found.
QPointF plainStar(const cv::Mat &grey, QPointF search);

/// Enlarges the full frame five-fold, converts and marks it, and cuts out the surroundings of star
/// B. Keeps its large matrices between calls.
class PlainMagnifier
{
public:
    cv::Mat crop(const cv::Mat &grey, QPointF starA, QPointF starB);

private:
    cv::Mat large, largeColour;
};

/// Renders a frame of stars over a noisy sky: one normal deviate per pixel.
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
