// SPDX-License-Identifier: MIT
// What does the control panel look like in each of the two display styles?
#pragma once

#include <QColor>
#include <QString>

/// The images and the glow of one display style.
struct Style {
    const char *name; ///< as the settings file spells it
    const char *poleIcon;
    const char *axisIcon;
    const char *lampOn;
    const char *lampOff;
    QColor glow; ///< of the drop shadows round the rotate sliders
};

/// The mono style for exactly "Mono", else the colour style.
const Style &styleNamed(const QString &name);
