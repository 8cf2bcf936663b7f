// SPDX-License-Identifier: MIT
// The smallest screen that the assistant's window fits on.
#pragma once

#include <QSize>

constexpr QSize smallScreen(800, 480);
