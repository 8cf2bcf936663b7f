// SPDX-License-Identifier: MIT
// Which of the toolkit's own texts can the user of the virtual mount see? They are translated here
// because the toolkit's catalogues may not be installed.
#pragma once

#include <QtGlobal>

namespace virtualmount
{
struct ToolkitText {
    const char *context;
    const char *text;
};

inline constexpr ToolkitText toolkitTexts[] = {
    // Keys as named in tool tips.
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Ctrl")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Shift")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Up")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Down")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Left")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Right")},
    // The fields' context menu.
    {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Undo")},
    {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Redo")},
    {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Cu&t")},
    {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Copy")},
    {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "&Paste")},
    {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Delete")},
    {"QLineEdit", QT_TRANSLATE_NOOP("QLineEdit", "Select All")},
    {"QAbstractSpinBox", QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Select All")},
    {"QAbstractSpinBox", QT_TRANSLATE_NOOP("QAbstractSpinBox", "&Step up")},
    {"QAbstractSpinBox", QT_TRANSLATE_NOOP("QAbstractSpinBox", "Step &down")},
    // Why the sky file cannot be read or written.
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "Permission denied")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "Too many open files")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "No such file or directory")},
    {"QIODevice", QT_TRANSLATE_NOOP("QIODevice", "No space left on device")},
};
} // namespace virtualmount
