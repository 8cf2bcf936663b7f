// SPDX-License-Identifier: MIT
// Which icon does the virtual mount's window have?
#pragma once

#include <QIcon>

namespace virtualmount
{
/// The menu entry's icon, compiled in so that it is available before installation.
QIcon mountIcon();
} // namespace virtualmount
