// SPDX-License-Identifier: MIT
// Which of the two poles?
#pragma once

namespace recognition
{
enum class Hemisphere { North, South };
} // namespace recognition
