// SPDX-License-Identifier: MIT
// The table of the two display styles.
#include "dialogs/style.h"

const Style &styleNamed(const QString &name)
{
    static const Style colour{"Color",
                              ":/images/pole_color.png",
                              ":/images/center_color.png",
                              ":/images/lighton_color.png",
                              ":/images/lightoff_color.png",
                              QColor(224, 134, 26)};
    static const Style mono{"Mono",
                            ":/images/pole.png",
                            ":/images/center.png",
                            ":/images/lighton_mono.png",
                            ":/images/lightoff_mono.png",
                            QColor(248, 248, 255)};
    return name == QLatin1String(mono.name) ? mono : colour;
}

LampCount lampsOnStyleChange(int step)
{
    switch (step) {
    case 3:
        return 0;
    case 4:
    case 5:
        return 1;
    case 6:
    case 7:
        return 2;
    case 8:
    case 9:
    case 11:
        return 3;
    default:
        return lampsUnchanged;
    }
}
