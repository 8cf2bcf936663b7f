// SPDX-License-Identifier: MIT
// How long does a tour's result stay visible?
#pragma once

class QString;
class QWidget;

/// Whether a user can see the result and press a key.
/// @param isFast the tour runs without pauses for a viewer
/// @param savesPictures the tour saves pictures for later
/// @param platform Qt's platform name
bool isWatched(bool isFast, bool savesPictures, const QString &platform);

/// Returns when a key was pressed in any of the program's windows, or the window was closed. The
/// key press has no other effect. Modifiers, such as Shift, and auto-repeated keys do not count.
void waitForKey(QWidget &window);
