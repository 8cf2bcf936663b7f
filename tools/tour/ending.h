// SPDX-License-Identifier: MIT
// How long does the result of a tour stay?
#pragma once

class QString;
class QWidget;

/// Whether somebody is there who sees the result and can press a key.
/// \param isFast without pauses for somebody who watches
/// \param savesPictures for somebody who looks at them later
/// \param platform Qt's name of what the windows are shown on
bool isWatched(bool isFast, bool savesPictures, const QString &platform);

/// Returns once a key was pressed in any of the program's windows, or the window was closed. The
/// key does nothing else; keys that only change others, as Shift does, and repeated ones do not
/// count.
void waitForKey(QWidget &window);
