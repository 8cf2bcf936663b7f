// SPDX-License-Identifier: MIT
// Which of Qt's own texts does the user see? They are translated with ours, since Qt's catalogues
// may not be installed.
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
    // The modifier key, shown beside the entries of the fields' context menus.
    {"QShortcut", QT_TRANSLATE_NOOP("QShortcut", "Ctrl")},
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
    // The scroll bars' context menus.
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll here")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Left edge")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Top")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Right edge")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Bottom")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Page left")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Page up")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Page right")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Page down")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll left")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll up")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll right")},
    {"QScrollBar", QT_TRANSLATE_NOOP("QScrollBar", "Scroll down")},
    // The context menu of a link.
    {"QWidgetTextControl", QT_TRANSLATE_NOOP("QWidgetTextControl", "Copy &Link Location")},
    // The file dialog's tips, menus, types and boxes.
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Go back")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Go forward")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Go to the parent directory")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Create a New Folder")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Change to list view mode")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Change to detail view mode")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Sidebar")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "List of places and bookmarks")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Files")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "All Files (*)")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Show ")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "&Rename")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "&Delete")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Show &hidden files")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "&New Folder")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "New Folder")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Delete")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Are you sure you want to delete '%1'?")},
    {"QFileDialog",
     QT_TRANSLATE_NOOP("QFileDialog",
                       "'%1' is write protected.\nDo you want to delete it anyway?")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Could not delete directory.")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Drive")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "%1 File")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "File")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Folder")},
    {"QFileDialog", QT_TRANSLATE_NOOP("QFileDialog", "Unknown")},
    {"QSidebar", QT_TRANSLATE_NOOP("QSidebar", "Remove")},
    {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Type")},
    {"QFileSystemModel", QT_TRANSLATE_NOOP("QFileSystemModel", "Invalid filename")},
    {"QFileSystemModel",
     QT_TRANSLATE_NOOP("QFileSystemModel",
                       "<b>The name \"%1\" cannot be used.</b><p>Try using another name, with "
                       "fewer characters or no punctuation marks.")},
};
