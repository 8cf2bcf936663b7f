// SPDX-License-Identifier: MIT
// Frames of a camera that has a thread of its own, so that no operation ever waits for it.
#pragma once

#include <functional>
#include <memory>

#include "framesources/nativecamera.h"
#include "framesources/settings.h"

namespace framesources
{
/// Makes the camera; called on the thread that then uses it.
using MakeCamera = std::function<std::unique_ptr<NativeCamera>()>;

class ThreadedSource : public virtualsky::FrameSource
{
public:
    ThreadedSource(const SourceSettings &settings, MakeCamera makeCamera, Report report);
    /// Returns at once; the thread ends when the camera lets it.
    ~ThreadedSource() override;

    virtualsky::Behaviour behaviour() override;
    std::string serialNumber(unsigned camera) override;
    void pause() override;
    unsigned frame(const virtualsky::FrameRequest &request, std::uint8_t *out) override;

private:
    struct Shared;
    const std::string serial;
    const std::shared_ptr<Shared> shared;
};

/// A name with everything but letters, digits and underscores made underscores, at most 26.
std::string serialOf(const std::string &name);
} // namespace framesources
