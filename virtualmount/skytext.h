// SPDX-License-Identifier: MIT
// How is a sky file changed without losing what else stands in it?
#pragma once

#include "virtualcamera/skystate.h"

#include <string>
#include <string_view>

namespace virtualmount
{
/// The text with the keys given another value in which `after` differs from `before`. Comments, the
/// order of lines and all other keys stay. A key that is not there yet is added at the end of its
/// section, a section at the end of the text.
/// @param text one that `virtualsky::parse` takes, with `before` as its result
std::string withChanges(std::string_view text, const virtualsky::SkyState &before,
                        const virtualsky::SkyState &after);
} // namespace virtualmount
