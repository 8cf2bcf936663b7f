// SPDX-License-Identifier: MIT
// Frames of the virtual camera, what is recognised in them, and what is true.
#pragma once

#include <QTest>
#include <cmath>
#include <opencv2/core.hpp>
#include <random>

#include "recognition/extraction.h"
#include "recognition/recognise.h"
#include "virtualcamera/scene.h"
#include "virtualcamera/sensor.h"
#include "virtualcamera/truth.h"

namespace skyframes
{
constexpr double november2026 = 1795204800.0;
constexpr double november2040 = 2236896000.0;

/// A noisy sky, standing still, with the axis near the picture's centre.
inline virtualsky::SkyState skyOf(bool south, double date)
{
    virtualsky::SkyState state;
    state.latitude = south ? -34.0 : 40.0;
    state.longitude = south ? 149.0 : 116.0;
    state.date = date;
    state.running = false;
    return state;
}

/// Puts the axis up to `reach` pixels from the picture's centre, across and down.
inline void scatterAxis(virtualsky::SkyState &state, double reach, std::mt19937 &random)
{
    std::uniform_real_distribution<double> place(-reach, reach);
    state.axisX = place(random);
    state.axisY = place(random);
}

inline cv::Mat frameOf(const virtualsky::SkyState &state, double utcSeconds, unsigned number,
                       double seconds = 0.5, double gain = 50.0)
{
    cv::Mat frame(virtualsky::sensorHeight, virtualsky::sensorWidth,
                  state.channels == 3 ? CV_8UC3 : CV_8UC1);
    virtualsky::Scene scene;
    virtualsky::Sensor sensor;
    sensor.render(state, scene.starsAt(state, utcSeconds), {}, {seconds, gain, number}, frame.data);
    return frame;
}

inline recognition::Recognition recognised(const cv::Mat &frame, double utcSeconds)
{
    recognition::RecognitionOptions options;
    options.utcSeconds = utcSeconds;
    return recognition::recognise(recognition::extractStars(frame).stars, frame.cols, frame.rows,
                                  options);
}

/// A frame after the RA axis turned and time passed.
inline recognition::Recognition turned(virtualsky::SkyState state, double raAngle,
                                       double secondsLater, unsigned number)
{
    state.raAngle = raAngle;
    const double time = *state.date + secondsLater;
    return recognised(frameOf(state, time, number), time);
}

/// Where the axis truly is in the frame.
inline virtualsky::Point axisOf(const virtualsky::SkyState &state)
{
    return virtualsky::truth(state, *state.date).axis.value();
}

/// Squared distance of a place from the truth in standard errors: 4 on the two-sigma ellipse.
inline double claimed(const recognition::PixelPlace &place, const recognition::Covariance &c,
                      const virtualsky::Point &truth)
{
    const double dx = place.x - truth.x;
    const double dy = place.y - truth.y;
    return (c.yy * dx * dx - 2.0 * c.xy * dx * dy + c.xx * dy * dy) / (c.xx * c.yy - c.xy * c.xy);
}

/// Arcseconds.
inline double error(const recognition::PixelPlace &place, const virtualsky::Point &truth)
{
    return virtualsky::pixelScale * std::hypot(place.x - truth.x, place.y - truth.y);
}

/// How well the results of several frames agree with the truth.
class Agreement
{
public:
    void add(const recognition::PixelPlace &place, const recognition::Covariance &covariance,
             const virtualsky::Point &truth)
    {
        squares += std::pow(error(place, truth), 2);
        inside += claimed(place, covariance, truth) <= 4.0;
        ++count;
    }
    double rms() const { return std::sqrt(squares / count); } ///< arcseconds
    int withinTwoSigma() const { return inside; }

private:
    double squares = 0.0;
    int inside = 0, count = 0;
};

/// Rows for both hemispheres and two dates.
inline void addSkies()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<double>("date");
    QTest::newRow("north 2026") << false << november2026;
    QTest::newRow("south 2026") << true << november2026;
    QTest::newRow("north 2040") << false << november2040;
    QTest::newRow("south 2040") << true << november2040;
}
} // namespace skyframes
