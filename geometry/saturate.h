// SPDX-License-Identifier: MIT
// Which whole number does a floating-point value become when it may lie outside int's range? Part
// of this library's interface; the function itself serves the widgets too.
#pragma once

#include "core/saturate.h" // IWYU pragma: export
