// SPDX-License-Identifier: MIT
// How is a sky file changed without losing its other contents?
#pragma once

#include "virtualcamera/skystate.h"

#include <string>
#include <string_view>

namespace virtualmount
{
/// The text with new values for the keys in which `after` differs from `before`. Comments, the
/// order of lines and all other keys are kept. A missing key is added at the end of its section, a
/// missing section at the end of the text.
/// @param text one that `virtualsky::parse` accepts, with `before` as its result
std::string withChanges(std::string_view text, const virtualsky::SkyState &before,
                        const virtualsky::SkyState &after);
} // namespace virtualmount
