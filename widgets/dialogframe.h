// SPDX-License-Identifier: MIT
// What do the windows of all dialogs have in common?
#pragma once

class QDialog;

/// Fixes the dialog at the size of its form and removes the help button from its title bar.
void fixDialogFrame(QDialog &dialog);
