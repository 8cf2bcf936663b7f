// SPDX-License-Identifier: MIT
// Where does the observer stand, and how is the air?
#pragma once

#include <QDialog>
#include <memory>

struct RefractionSettings;

namespace Ui
{
class AstroRefractionDialog;
}

/// Edits the settings that it was given: every change of a widget is written there at once.
class AstroRefractionDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param edited outlives the dialog
    explicit AstroRefractionDialog(RefractionSettings &edited, QWidget *parent = nullptr);
    ~AstroRefractionDialog() override;

public slots:
    /// Shows what the settings hold. A value outside a widget's range comes back clamped;
    /// a unit other than the one shown converts the pressure shown before the stored one is put in.
    void initValues();
    void uiReset();
    /// Follows the unit with the pressure's range and value; the unit's name stays as it was.
    void on_comboBox_presure_currentIndexChanged(int index);
    void on_checkBox_enableAstroRef_toggled(bool checked);
    void on_doubleSpinBox_latitude_valueChanged(double arg1);
    void on_doubleSpinBox_longitude_valueChanged(double arg1);
    void on_doubleSpinBox_presure_valueChanged(double arg1);
    void on_doubleSpinBox_temperature_valueChanged(double arg1);

private:
    std::unique_ptr<Ui::AstroRefractionDialog> ui;
    RefractionSettings &settings;
};
