// SPDX-License-Identifier: MIT
// Which int does a floating-point value become if it may be outside int's range? Part of this
// library's interface; the function itself is in core because the widgets use it too.
#pragma once

#include "core/saturate.h" // IWYU pragma: export
