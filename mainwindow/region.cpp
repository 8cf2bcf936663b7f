// SPDX-License-Identifier: MIT
// Which hemisphere is the mount aligned in, and what follows from it?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "geometry/starcatalogue.h"
#include "mainwindow/wizardtable.h"
#include "ui_mainwindow.h"

#include <QtDebug>

/// Any other name in the settings file means the south.
bool MainWindow::isSouth() const
{
    return regionName != QLatin1String("North");
}

const QImage &MainWindow::regionMask() const
{
    return isSouth() ? southMask : northMask;
}

const StarCatalogue &MainWindow::regionCatalogue() const
{
    return isSouth() ? southCatalogue : northCatalogue;
}

void MainWindow::applyRegion()
{
    // Checking a button runs its slot, which loads the hemisphere and enters step 1.
    if (isSouth())
        ui->radioButton_south->setChecked(true);
    else
        ui->radioButton_north->setChecked(true);
    showFlatTemplate();
}

/// Loads a hemisphere's stars and texts and restarts the alignment.
void MainWindow::changeRegion(const char *name)
{
    regionName = name;
    qDebug() << "change region to " << regionName;
    const StarCatalogue &stars = regionCatalogue();
    session.alignmentPoints.angleBAP = stars.angleBAP;
    session.alignmentPoints.angleABP = stars.angleABP;
    applyRegionTexts();
    switchStep(SetExposure);
}

void MainWindow::on_radioButton_north_toggled(bool checked)
{
    if (checked)
        changeRegion("North");
}

void MainWindow::on_radioButton_south_toggled(bool checked)
{
    if (checked)
        changeRegion("South");
}
