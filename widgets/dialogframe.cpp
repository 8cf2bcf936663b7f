// SPDX-License-Identifier: MIT
// The frame that the dialogs share.
#include "widgets/dialogframe.h"

#include <QDialog>

void fixDialogFrame(QDialog &dialog)
{
    dialog.setFixedSize(dialog.size());
    dialog.setWindowFlags(dialog.windowFlags() & ~Qt::WindowContextHelpButtonHint);
}
