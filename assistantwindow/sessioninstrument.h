// SPDX-License-Identifier: MIT
// The window's instrument on the real camera and guide.
#pragma once

#include "assistant/assistantsession.h"
#include "assistantwindow/instrument.h"

namespace assistantwindow
{
class SessionInstrument : public Instrument
{
public:
    explicit SessionInstrument(const assistant::Settings &settings);

    std::vector<CameraEntry> cameras() override;
    void connectCamera(const QString &id) override;
    void disconnectCamera() override;
    bool isConnected() const override;
    Range exposureRange() const override;
    void setExposure(double microseconds) override;
    void setAutomaticExposure(bool on) override;
    void startAgain() override;
    void apply(const assistant::Settings &settings) override;
    Snapshot latest() override;
    std::optional<ReportFigures> report() override;
    QString saveCsv(const QString &file) override;

    /// Ends the session's threads; false if the camera library does not return in time.
    bool close(int milliseconds);

private:
    void remember(const assistant::Status &status);

    assistant::AssistantSession session;
    struct Entry {
        double utcSeconds;
        assistant::ErrorFigures error;
    };
    std::vector<Entry> entries;        ///< at most one a second, for the table
    std::optional<double> beganAt;     ///< utc of the first frame since connecting
    std::optional<assistant::Status> last; ///< the last one with an error
};

/// How fast a star at the equator drifts in declination, and how fast its field turns, at most, for
/// an axis that misses the pole by so much: arcseconds an hour.
double driftPerHour(double totalArcseconds);
} // namespace assistantwindow
