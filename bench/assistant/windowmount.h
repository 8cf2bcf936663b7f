// SPDX-License-Identifier: MIT
// A person at the assistant's window: mouse, keys, and what the labels show.
#pragma once

#include "assistantwindow/assistantwindow.h"
#include "assistantwindow/sessioninstrument.h"
#include "bench/assistant/mountonsky.h"
#include "tools/tour/assistanthands.h"

#include <memory>

/// The window on the camera library, under the present sky. The site and the air are entered by
/// keys and the camera is connected by the mouse. Only one at a time; a QApplication must exist.
class WindowMount : public MountOnSky
{
public:
    /// @param start without its date; latitude and longitude are rounded as the window's fields do
    /// @param given what the window asks; null: one of its own
    explicit WindowMount(const virtualsky::SkyState &start,
                         std::unique_ptr<assistantwindow::SessionInstrument> given = nullptr);
    ~WindowMount() override;

    /// What the labels show as soon as they change, at the latest after `longestLook`; after a turn
    /// of a knob, once they show a frame that was exposed since.
    assistant::Status next() override;
    double seconds() const override;
    const virtualsky::SkyState &sky() const override { return knobs->edit(); }
    void setSky(const virtualsky::SkyState &sky) override;
    virtualsky::Truth truth() const override;

    assistantwindow::AssistantWindow &theWindow() { return *window; }

    static constexpr int longestLook = 300;   ///< milliseconds
    static constexpr int longestWait = 10000; ///< milliseconds for a frame after a turn

private:
    void enterSettings();
    bool knowsLastTurn() const;

    std::unique_ptr<Knobs> knobs;
    std::unique_ptr<assistantwindow::SessionInstrument> instrument;
    std::unique_ptr<assistantwindow::AssistantWindow> window;
    std::unique_ptr<AssistantHands> hands;
    double began = 0.0;    ///< steady seconds
    double turnedAt = 0.0; ///< utc seconds of the last turn of a knob
};
