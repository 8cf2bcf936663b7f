// SPDX-License-Identifier: MIT
// How do the overlays on the picture follow the window's size?
#include "mainwindow/mainwindow.h"

#include <QResizeEvent>

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    placeImageOverlays();
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    placeImageOverlays();
}
