// SPDX-License-Identifier: MIT
// What does a manual show in addition to the steps? The menus and the dialogs.
#pragma once

class Album;
class QMainWindow;

/// Opens each menu and each dialog of the window and saves its picture, named after the menu's
/// object (menu-help) or the dialog's class (aboutdialog).
void showMenusAndDialogs(QMainWindow &window, const Album &album);
