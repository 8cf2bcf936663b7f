// SPDX-License-Identifier: MIT
// Which folder in a place that everybody writes to belongs to this user alone?
#pragma once

#include <string>

namespace virtualsky
{
/// `parent`/`name` if it is this user's own folder, not a link to one, with mode 0700; it is made
/// if nothing is there. Otherwise somebody else may have put it there: then an own folder of mode
/// 0700 whose name is `name`, a hyphen and six characters, the first that exists or a new one.
/// Empty if none can be made.
std::string privateFolder(const std::string &parent, const std::string &name);
} // namespace virtualsky
