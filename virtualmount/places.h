// SPDX-License-Identifier: MIT
// Where are the windows of the program and the virtual mount, so that both fit on the screen?
#pragma once

#include <QByteArray>
#include <QMargins>
#include <QRect>

namespace virtualmount
{
/// The corner is that of the window's frame, the size is that of the area inside the frame: window
/// managers interpret a requested geometry this way.
struct WindowGeometries {
    bool beside; ///< false: the program fills the screen and the mount is behind it
    QRect program, mount;
};

/// @param screen the part of the screen that is available to windows
/// @param mountSize the size that the mount's window needs
/// @param frame the decoration that the window manager adds around a window
WindowGeometries sharedScreen(const QRect &screen, const QSize &mountSize, const QMargins &frame);

/// For scripts: "beside" or "behind", and a geometry for the program and for the mount in the
/// format of -qwindowgeometry.
QByteArray geometriesText(const WindowGeometries &places);

/// Measured by showing a tiny window for a moment; empty if there are no frames.
QMargins windowFrame();
} // namespace virtualmount
