// SPDX-License-Identifier: MIT
// Which colours does each of the two themes have?
#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>
#include <QString>

namespace assistantwindow
{
/// Grounds from dark to light, texts, and the colours of the marks over the picture.
struct Theme {
    QColor well, window, panel, control, border;
    QColor text, quiet, disabled, accent, lit, onAccent;
    QColor good, warning; ///< advice and bolts
    QColor pole, axis, star, grid;
    QColor altitude, azimuth; ///< each bolt beside the figures and in the picture
};

/// The normal dark theme, or the one that emits only red: its colours have neither green nor blue.
const Theme &theme(bool red);

/// The style sheet of the whole application, :/assistant/assistant.qss with the theme's colours.
QString themeSheet(const Theme &theme);

/// What the toolkit draws without the style sheet.
QPalette themePalette(const Theme &theme);

/// Every pixel's brightest channel as red, green and blue 0; alpha is kept.
QImage reddened(const QImage &image);
} // namespace assistantwindow
