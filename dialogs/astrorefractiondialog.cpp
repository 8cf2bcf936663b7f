// SPDX-License-Identifier: MIT
// The refraction dialog.
#include "dialogs/astrorefractiondialog.h"

#include "camera/sharedstate.h"
#include "dialogs/dialogframe.h"
#include "ui_astrorefractiondialog.h"

#include <QListView>

AstroRefractionDialog::AstroRefractionDialog(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::AstroRefractionDialog>())
{
    ui->setupUi(this);
    // A plain list view, so that the style sheet reaches the items of the drop-down.
    ui->comboBox_presure->setView(new QListView(ui->comboBox_presure));
    fixDialogFrame(*this);
}

AstroRefractionDialog::~AstroRefractionDialog() = default;

void AstroRefractionDialog::initValues()
{
    ui->doubleSpinBox_latitude->setValue(double(refractionSettings.latitude));
    ui->doubleSpinBox_longitude->setValue(double(refractionSettings.longitude));
    ui->comboBox_presure->setCurrentIndex(refractionSettings.P_unit == QLatin1String("hPa") ? 1
                                                                                            : 0);
    ui->doubleSpinBox_presure->setValue(double(refractionSettings.P));
    ui->doubleSpinBox_temperature->setValue(double(refractionSettings.T));
    ui->checkBox_enableAstroRef->setChecked(refractionSettings.enabledCorrect);
}

void AstroRefractionDialog::uiReset()
{
    ui->retranslateUi(this);
}

void AstroRefractionDialog::on_comboBox_presure_currentIndexChanged(int index)
{
    QDoubleSpinBox &pressure = *ui->doubleSpinBox_presure;
    const double value = pressure.value();
    if (index == 0) {
        pressure.setMaximum(110);
        pressure.setMinimum(90);
        pressure.setValue(value / 10);
    } else if (index == 1) {
        pressure.setMaximum(1100);
        pressure.setMinimum(900);
        pressure.setValue(value * 10);
    }
    refractionSettings.P = float(pressure.value());
}

void AstroRefractionDialog::on_checkBox_enableAstroRef_toggled(bool checked)
{
    refractionSettings.enabledCorrect = checked;
}

void AstroRefractionDialog::on_doubleSpinBox_latitude_valueChanged(double arg1)
{
    refractionSettings.latitude = float(arg1);
}

void AstroRefractionDialog::on_doubleSpinBox_longitude_valueChanged(double arg1)
{
    refractionSettings.longitude = float(arg1);
}

void AstroRefractionDialog::on_doubleSpinBox_presure_valueChanged(double arg1)
{
    refractionSettings.P = float(arg1);
}

void AstroRefractionDialog::on_doubleSpinBox_temperature_valueChanged(double arg1)
{
    refractionSettings.T = float(arg1);
}
