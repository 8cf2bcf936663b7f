// SPDX-License-Identifier: MIT
// What does the control panel look like in each of the two display styles?
#pragma once

#include <QColor>
#include <QString>

/// The images and the glow of one display style.
struct Style {
    const char *name; ///< as written in the settings file
    const char *poleIcon;
    const char *axisIcon;
    const char *lampOn;
    const char *lampOff;
    QColor glow; ///< of the drop shadows around the rotate sliders
};

/// The mono style for exactly "Mono", otherwise the colour style.
const Style &styleNamed(const QString &name);
