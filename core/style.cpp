// SPDX-License-Identifier: MIT
// The table of the two display styles.
#include "core/style.h"

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
