// SPDX-License-Identifier: MIT
// Which of Qt's own texts do the users of every program with a window see? They are translated with
// ours, since Qt's catalogues may not be installed. What one program adds is in its own folder.
#pragma once

#include <QtGlobal>

struct ToolkitText {
    const char *context;
    const char *text;
};

inline constexpr ToolkitText sharedToolkitTexts[] = {
    // The modifier keys, shown beside the entries of the fields' context menus.
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Ctrl")},
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Shift")},
    // The fields' context menus.
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
};
