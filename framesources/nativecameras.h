// SPDX-License-Identifier: MIT
// Which native camera belongs to an address?
#pragma once

#include <memory>

#include "framesources/nativecamera.h"
#include "framesources/settings.h"

namespace framesources
{
/// Null for the sky, and for INDI where the build lacks it, which is reported.
std::unique_ptr<NativeCamera> makeNativeCamera(const SourceSettings &settings,
                                               const Report &report);

/// Whether INDI's library was there when this was built.
bool hasIndi();
} // namespace framesources
