// SPDX-License-Identifier: MIT
// Which icon does the virtual mount's window have?
#pragma once

#include <QIcon>

namespace virtualmount
{
/// The menu entry's, compiled in: it is there before anything is installed.
QIcon mountIcon();
} // namespace virtualmount
