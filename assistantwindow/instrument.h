// SPDX-License-Identifier: MIT
// What does the window need of the camera and its guide?
#pragma once

#include "assistant/report.h"
#include "assistant/settings.h"
#include "assistant/status.h"

#include <QImage>
#include <QString>
#include <optional>
#include <vector>

namespace assistantwindow
{
struct CameraEntry {
    QString id;
    QString name;
};

/// The latest frame with what is known at it. Without a camera the picture is null.
struct Snapshot {
    assistant::Status status;
    QImage picture;
    double gain = 0.0;
    std::uint64_t number = 0; ///< another one whenever anything changed
    QString cameraId;         ///< of the camera that is open; empty: none
};

struct Range {
    double least = 0.0, greatest = 0.0;
};

/// All calls come from the GUI thread and return at once.
class Instrument
{
public:
    virtual ~Instrument() = default;

    virtual void findCameras() = 0;                    ///< looks for them again
    virtual std::vector<CameraEntry> cameras() = 0;    ///< that were found so far
    virtual void connectCamera(const QString &id) = 0; ///< empty: the first one
    virtual void disconnectCamera() = 0;
    virtual bool isConnected() const = 0;              ///< or connecting
    virtual Range exposureRange() const = 0;           ///< microseconds
    virtual void setExposure(double microseconds) = 0; ///< turns the automatic off
    virtual void setAutomaticExposure(bool on) = 0;
    virtual void startAgain() = 0;
    virtual void apply(const assistant::Settings &settings) = 0;
    virtual Snapshot latest() = 0;
    virtual std::optional<assistant::Report> report() = 0; ///< nothing before there is an error
};
} // namespace assistantwindow
