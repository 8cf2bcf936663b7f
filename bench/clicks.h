// SPDX-License-Identifier: MIT
// How long does the window take to respond to a click?
#pragma once

#include <QWidget>
#include <vector>

/// Clicks `button` `count` times at uneven intervals while the event loop runs. The time of a click
/// starts when another thread posts it to the event loop, as the thread that reads window system
/// events does, and ends after the button's next repaint.
/// @return milliseconds of all clicks, sorted
std::vector<double> clickTimes(QWidget &button, int count);
