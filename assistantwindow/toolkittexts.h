// SPDX-License-Identifier: MIT
// Which of the toolkit's own texts does only the assistant show? Those of all programs are in
// core/toolkittexts.h.
#pragma once

#include "core/toolkittexts.h"

namespace assistantwindow
{
inline constexpr ToolkitText toolkitTexts[] = {
    // Why the report cannot be written.
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "Permission denied")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "Too many open files")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "No such file or directory")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "No space left on device")},
};
} // namespace assistantwindow
