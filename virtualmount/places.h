// SPDX-License-Identifier: MIT
// Where do the program and the virtual mount stand, so that neither leaves the screen?
#pragma once

#include <QByteArray>
#include <QMargins>
#include <QRect>

/// The corner is that of the window's frame, the size is that of what lies within the frame: so
/// window managers read a place that is asked for.
struct Places {
    bool beside; ///< false: the program fills the screen, and the mount stands behind it
    QRect program, mount;
};

/// \param screen the part of the screen that windows may take
/// \param mountSize the size that the mount's window needs
/// \param frame what the window manager adds round a window
Places sharedScreen(const QRect &screen, const QSize &mountSize, const QMargins &frame);

/// For scripts: "beside" or "behind", and a geometry for the program and for the mount in the form
/// that -qwindowgeometry takes.
QByteArray placesText(const Places &places);

/// Asks the window manager by showing a tiny window for a moment; nothing where there are no
/// frames.
QMargins windowFrame();
