// SPDX-License-Identifier: MIT
// Frames of the virtual camera with a status as the guide would make it, and an instrument that
// shows them: for the window's look in every stage, at once.
#pragma once

#include "assistantwindow/instrument.h"
#include "tests/recognition/skyframes.h"

#include <opencv2/imgproc.hpp>

namespace madestatus
{
struct Error {
    double altitude, azimuth; ///< arcseconds
};

inline QImage imageOf(const cv::Mat &frame)
{
    cv::Mat colour;
    cv::cvtColor(frame, colour, frame.channels() == 1 ? cv::COLOR_GRAY2RGB : cv::COLOR_BGR2RGB);
    return QImage(colour.data, colour.cols, colour.rows, int(colour.step), QImage::Format_RGB888)
        .copy();
}

inline assistant::ErrorFigures figuresOf(const Error &error, bool hasSite)
{
    assistant::ErrorFigures figures;
    figures.total = {std::hypot(error.altitude, error.azimuth), 3.1};
    if (hasSite) {
        figures.altitude = recognition::Measured{error.altitude, 2.2};
        figures.azimuth = recognition::Measured{error.azimuth, 2.9};
    }
    return figures;
}

/// A recognised frame; the axis lies `error` off the pole in the picture.
inline assistantwindow::Snapshot recognisedSnapshot(bool south, assistant::Stage stage,
                                                    const Error &error, bool hasSite)
{
    const virtualsky::SkyState state = skyframes::skyOf(south, skyframes::november2026);
    const cv::Mat frame = skyframes::frameOf(state, skyframes::november2026, 1);
    assistantwindow::Snapshot snapshot;
    snapshot.picture = imageOf(frame);
    assistant::Status &status = snapshot.status;
    status.frame = 7;
    status.utcSeconds = skyframes::november2026;
    status.width = frame.cols;
    status.height = frame.rows;
    status.stage = stage;
    status.stars = recognition::extractStars(frame).stars;
    recognition::RecognitionOptions options;
    options.utcSeconds = status.utcSeconds;
    auto sky = std::make_shared<recognition::Recognition>(
        recognition::recognise(status.stars, frame.cols, frame.rows, options));
    status.fwhm = 2.6;
    status.pole = sky->pole;
    status.poleCovariance = sky->poleCovariance;
    const double scale = sky->mapping.scaleAt(sky->pole);
    status.sky = sky;
    status.exposureMicroseconds = 500000.0;
    if (stage == assistant::Stage::Sky)
        return snapshot;
    status.axis.turnedDegrees = stage == assistant::Stage::Axis ? 17.0 : 41.0;
    status.axis.sigmaArcseconds = 12.0;
    status.axis.covariance = {4.0, 1.5, 2.0};
    status.axis.enough = stage == assistant::Stage::Bolts;
    status.axis.place = recognition::PixelPlace{status.pole->x + error.azimuth / scale,
                                                status.pole->y - error.altitude / scale};
    if (stage == assistant::Stage::Bolts)
        status.error = figuresOf(error, hasSite);
    return snapshot;
}

/// Shows the snapshot that a test sets, and records what the window asks for.
class MadeInstrument : public assistantwindow::Instrument
{
public:
    assistantwindow::Snapshot snapshot;
    std::vector<assistantwindow::CameraEntry> entries;
    std::optional<assistant::Report> figures;
    bool connected = false;
    QStringList calls;

    void findCameras() override { calls.append(QStringLiteral("find")); }
    std::vector<assistantwindow::CameraEntry> cameras() override { return entries; }
    void connectCamera(const QString &id) override
    {
        connected = true;
        calls.append(QStringLiteral("connect ") + id);
    }
    void disconnectCamera() override
    {
        connected = false;
        snapshot = {};
        calls.append(QStringLiteral("disconnect"));
    }
    bool isConnected() const override { return connected; }
    assistantwindow::Range exposureRange() const override { return {1000.0, 1e7}; }
    void setExposure(double microseconds) override
    {
        snapshot.status.exposureMicroseconds = microseconds;
        snapshot.status.automaticExposure = false;
        calls.append(QStringLiteral("exposure"));
    }
    void setAutomaticExposure(bool on) override
    {
        snapshot.status.automaticExposure = on;
        calls.append(QStringLiteral("automatic %1").arg(int(on)));
    }
    void startAgain() override { calls.append(QStringLiteral("start again")); }
    void apply(const assistant::Settings &) override {}
    assistantwindow::Snapshot latest() override { return snapshot; }
    std::optional<assistant::Report> report() override { return figures; }
};
} // namespace madestatus
