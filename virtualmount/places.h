// SPDX-License-Identifier: MIT
// Where do the program and the virtual mount stand side by side, so that neither hides the other?
#pragma once

#include <QRect>

struct Places {
    QRect program, mount;
};

/// @param screen the part of the screen that windows may take
/// @param mountSize the size that the mount's window needs
/// Room is left for the windows' frames. A screen too narrow for both keeps the mount whole.
Places sideBySide(const QRect &screen, const QSize &mountSize);
