// SPDX-License-Identifier: MIT
// What do the windows of all dialogs have in common?
#pragma once

class QDialog;

/// Holds the dialog at the size of its form and takes the help button from its title bar.
void fixDialogFrame(QDialog &dialog);
