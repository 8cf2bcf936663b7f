// SPDX-License-Identifier: MIT
// The source of frames that the environment or the sky file chooses.
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "framesources/settings.h"
#include "virtualcamera/skysource.h"

/// The virtual sky, or another source as long as one is chosen. A change of the sky file takes
/// effect with the next call.
class ChosenSource : public virtualsky::FrameSource
{
public:
    /// @param skyFile path of the sky file
    /// @param wish text of the environment variable; precedes the file; empty = not set
    /// @param faults is called with one line for each new fault
    ChosenSource(const std::string &skyFile, const std::string &wish,
                 virtualsky::SkyWatch::Report faults);

    virtualsky::Behaviour behaviour() override;
    std::string serialNumber(unsigned camera) override;
    void pause() override;
    unsigned frame(const virtualsky::FrameRequest &request, std::uint8_t *out) override;

private:
    std::optional<framesources::SourceSettings> chosen(const virtualsky::SkyState &state);
    virtualsky::FrameSource *open(const framesources::SourceSettings &settings);
    std::shared_ptr<virtualsky::FrameSource> current();

    const virtualsky::SkyWatch::Report report;
    const std::shared_ptr<virtualsky::SkySource> sky;
    std::optional<virtualsky::CameraAddress> wished; // by the environment
    bool badWish = false;

    std::mutex mutex;                                   // guards everything below
    std::optional<framesources::SourceSettings> opened; // none = the sky
    std::shared_ptr<virtualsky::FrameSource> source;
};
