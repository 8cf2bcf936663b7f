// SPDX-License-Identifier: MIT
// The refraction dialog.
#include "dialogs/astrorefractiondialog.h"

#include "core/sharedstate.h"
#include "ui_astrorefractiondialog.h"
#include "widgets/dialogframe.h"

#include <QListView>

AstroRefractionDialog::AstroRefractionDialog(RefractionSettings &edited, QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::AstroRefractionDialog>()), settings(edited)
{
    ui->setupUi(this);
    // A plain list view, so that the style sheet reaches the items of the drop-down.
    ui->comboBox_presure->setView(new QListView(ui->comboBox_presure));
    fixDialogFrame(*this);
}

AstroRefractionDialog::~AstroRefractionDialog() = default;

void AstroRefractionDialog::initValues()
{
    ui->doubleSpinBox_latitude->setValue(double(settings.latitude));
    ui->doubleSpinBox_longitude->setValue(double(settings.longitude));
    ui->comboBox_presure->setCurrentIndex(settings.P_unit == QLatin1String("hPa") ? 1 : 0);
    ui->doubleSpinBox_presure->setValue(double(settings.P));
    ui->doubleSpinBox_temperature->setValue(double(settings.T));
    ui->checkBox_enableAstroRef->setChecked(settings.enabledCorrect);
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
    settings.P = float(pressure.value());
}

void AstroRefractionDialog::on_checkBox_enableAstroRef_toggled(bool checked)
{
    settings.enabledCorrect = checked;
}

void AstroRefractionDialog::on_doubleSpinBox_latitude_valueChanged(double arg1)
{
    settings.latitude = float(arg1);
}

void AstroRefractionDialog::on_doubleSpinBox_longitude_valueChanged(double arg1)
{
    settings.longitude = float(arg1);
}

void AstroRefractionDialog::on_doubleSpinBox_presure_valueChanged(double arg1)
{
    settings.P = float(arg1);
}

void AstroRefractionDialog::on_doubleSpinBox_temperature_valueChanged(double arg1)
{
    settings.T = float(arg1);
}
