// SPDX-License-Identifier: MIT
// Which scale has a lens, and does it mirror the sky, by the stars that it shows?
#pragma once

#include <chrono>
#include <optional>

#include "framesources/preparation.h"
#include "virtualcamera/skystate.h"

namespace framesources
{
/// Settles what the settings leave open from the first frame whose stars are recognised, again when
/// the frames' size changes. Not thread-safe.
class LensFinder
{
public:
    LensFinder(virtualsky::LensScale lensScale, virtualsky::Mirrored lensMirrored,
               Report reportLens);

    /// The lens as far as it is known.
    Lens lensFor(const NativeFrame &frame);

private:
    bool isOpen() const;
    void recognise(const NativeFrame &frame);

    const virtualsky::LensScale scale;
    const virtualsky::Mirrored mirrored;
    const Report report;
    std::optional<Lens> found;
    cv::Size size; // of the frames
    std::chrono::steady_clock::time_point tried;
};
} // namespace framesources
