// SPDX-License-Identifier: MIT
// Which of the toolkit's own texts does the user meet? They are translated with ours, since the
// toolkit's catalogues need not be on the machine.
#pragma once

#include <QtGlobal>

struct ToolkitText {
    const char *context;
    const char *text;
};

inline constexpr ToolkitText toolkitTexts[] = {
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "OK")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "&No")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Save")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Open")},
    {"QPlatformTheme", QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Look in:")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Directory:")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "File &name:")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Files of type:")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "&Save")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "&Open")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Back")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Forward")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Parent Directory")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Create New Folder")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "List View")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Detail View")},
    {"QFileDialog",
     QT_TRANSLATE_NOOP("QFileDialog", "%1 already exists.\nDo you want to replace it?")},
    {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Name")},
    {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Size")},
    {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Computer")},
    {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Date Modified")},
};
