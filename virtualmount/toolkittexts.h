// SPDX-License-Identifier: MIT
// Which of Qt's own texts does the user of the virtual mount see, beside those that all programs
// share?
#pragma once

#include "core/toolkittexts.h"

namespace virtualmount
{
inline constexpr ToolkitText toolkitTexts[] = {
    // Keys as named in tool tips.
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Up")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Down")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Left")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Right")},
    // Why the sky file cannot be read or written.
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "Permission denied")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "Too many open files")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "No such file or directory")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "No space left on device")},
};
} // namespace virtualmount
