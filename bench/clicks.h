// SPDX-License-Identifier: MIT
// How long does the window take to answer a click?
#pragma once

#include <QWidget>
#include <vector>

/// Clicks `button` `count` times at uneven intervals while the event loop runs. A click is timed
/// from the moment at which another thread puts it into the loop's queue, as the thread that reads
/// the window system's events does, to the end of the button's next painting.
/// \returns milliseconds of every click, sorted
std::vector<double> clickTimes(QWidget &button, int count);
