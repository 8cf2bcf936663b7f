// SPDX-License-Identifier: MIT
// The camera library itself, with its own thread and time, under a sky file.
#pragma once

#include "assistant/assistantsession.h"
#include "bench/assistant/mountonsky.h"

#include <memory>
#include <string>

/// Writes `sky` to the sky file of this process and gives its path to the library by the
/// environment. Call it before the library is loaded.
void writeSky(const virtualsky::SkyState &sky);

/// Connects to the library's first camera. Only one at a time.
class LibraryMount : public MountOnSky
{
public:
    LibraryMount(const virtualsky::SkyState &start, const assistant::Settings &settings);

    /// Waits for a new frame; after ten seconds the status is what is known without one.
    assistant::Status next() override;
    double seconds() const override;
    const virtualsky::SkyState &sky() const override { return state; }
    void setSky(const virtualsky::SkyState &sky) override;
    virtualsky::Truth truth() const override;

    assistant::AssistantSession &session() { return *engine; }
    /// The computer's clock against the sky's, seconds.
    void setClockError(double by) { clockError = by; }

private:
    double utc() const;

    virtualsky::SkyState state;
    const double date;  ///< of the sky when it began; other threads read it
    double began = 0.0; ///< steady seconds
    Relaxed<double> clockError;
    std::uint64_t seen = 0;
    std::unique_ptr<assistant::AssistantSession> engine;
};
