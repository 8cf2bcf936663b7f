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

    void findCameras() override;
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
    std::optional<assistant::Report> report() override;

    /// Ends the session's threads; false if the camera library does not return in time.
    bool close(int milliseconds);

private:
    void remember(const assistant::Status &status);

    assistant::AssistantSession session;
    std::optional<double> beganAt;         ///< utc of the first frame since connecting
    std::optional<assistant::Status> last; ///< the last one with an error
};
} // namespace assistantwindow
