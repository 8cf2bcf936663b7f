// SPDX-License-Identifier: MIT
// The pole tracking dialog.
#include "dialogs/poletrackingdialog.h"

#include "ui_poletrackingdialog.h"
#include "widgets/dialogframe.h"

#include <algorithm>

PoleTrackingDialog::PoleTrackingDialog(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::PoleTrackingDialog>())
{
    ui->setupUi(this);
    fixDialogFrame(*this);
}

PoleTrackingDialog::~PoleTrackingDialog() = default;

void PoleTrackingDialog::uiReset()
{
    ui->retranslateUi(this);
}

void PoleTrackingDialog::on_pushButton_tracking_minus_clicked()
{
    ui->dial_tracking->setValue(std::max(ui->dial_tracking->value() - 1, 0));
}

void PoleTrackingDialog::on_pushButton_tracking_add_clicked()
{
    ui->dial_tracking->setValue(std::min(ui->dial_tracking->value() + 1, 360));
}

void PoleTrackingDialog::on_pushButton_reset_clicked()
{
    ui->dial_tracking->setValue(0);
}

void PoleTrackingDialog::on_dial_tracking_valueChanged(int value)
{
    emit trackPole(double(value));
}
