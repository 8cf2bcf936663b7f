// SPDX-License-Identifier: MIT
// What do the menu entries do, except connecting, zooming and choosing a language?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "core/manual.h"
#include "core/style.h"
#include "dialogs/aboutdialog.h"
#include "dialogs/astrorefractiondialog.h"
#include "dialogs/favoritedialog.h"
#include "dialogs/poletrackingdialog.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"
#include "widgets/openmanual.h"

#include <QFileDialog>
#include <QMediaPlayer>
#include <QMediaPlaylist>
#include <QtDebug>

void MainWindow::on_actionSave_As_triggered()
{
    if (!session.camera.cameraConnected)
        return;
    qDebug("click save as...");
    const QString name = QFileDialog::getSaveFileName(this, tr("Save"), QString(),
                                                      QStringLiteral("Images (*.png *.jpg *.bmp)"));
    if (!name.isEmpty())
        displayImage.save(name);
}

void MainWindow::on_actionExit_triggered()
{
    close();
}

void MainWindow::on_actionDisplay_Template_toggled(bool checked)
{
    qDebug() << "click display tempalte" << checked;
}

void MainWindow::on_actionStretch_toggled(bool checked)
{
    qDebug() << "click stretch" << checked;
}

void MainWindow::on_actionMono_Style_toggled(bool arg1)
{
    if (arg1)
        qDebug("switch to mono style");
    else
        qDebug("switch to color style");
    setStyleName(arg1 ? QStringLiteral("Mono") : QStringLiteral("Color"));
    showStyle(styleNamed(styleName));
    const LampCount lit = lampsOnStyleChange(currentStep);
    if (lit != lampsUnchanged)
        showLamps(lit);
}

void MainWindow::on_actionAstronomical_Refraction_triggered()
{
    refractionDialog->show();
}

void MainWindow::on_actionManual_Trace_triggered()
{
    trackingDialog->show();
}

void MainWindow::on_actionQuorvandel_Manual_triggered()
{
    openManual(manualUrl(languageCode), ui->actionQuorvandel_Manual->text(), *ui->statusBar);
}

void MainWindow::on_actionAbout_triggered()
{
    aboutDialog->show();
}

void MainWindow::on_actionFavorite_triggered()
{
    favoriteDialog->show();
}

void MainWindow::on_actionPlay_Audio_toggled(bool checked)
{
    if (!checked) {
        player->stop();
        return;
    }
    player->playlist()->setPlaybackMode(QMediaPlaylist::CurrentItemInLoop);
    player->play();
}

void MainWindow::on_actionPlay_Audio_triggered() {}
