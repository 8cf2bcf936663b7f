// SPDX-License-Identifier: MIT
// Opens menus and dialogs and saves their pictures.
#include "tools/tour/exhibits.h"

#include "tools/tour/album.h"

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

void showMenusAndDialogs(QMainWindow &window, const Album &album)
{
    for (const QAction *const entry : window.menuBar()->actions()) {
        QMenu &menu = *entry->menu();
        menu.popup(window.menuBar()->mapToGlobal(
            window.menuBar()->actionGeometry(menu.menuAction()).bottomLeft()));
        QTest::qWait(50);
        album.add(menu, QStringLiteral("menu-%1").arg(menu.objectName().mid(4).toLower()));
        menu.close();
    }
    for (QDialog *const dialog : window.findChildren<QDialog *>()) {
        dialog->show();
        QTest::qWait(50);
        album.add(*dialog, QString(dialog->metaObject()->className()).toLower());
        dialog->close();
    }
}
