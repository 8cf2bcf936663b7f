// SPDX-License-Identifier: MIT
// Where is the observer, and what are the pressure and the temperature?
#pragma once

#include <QDialog>
#include <memory>

struct RefractionSettings;

namespace Ui
{
class AstroRefractionDialog;
}

/// Edits the given settings: every change of a widget is stored there at once.
class AstroRefractionDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param edited must outlive the dialog
    explicit AstroRefractionDialog(RefractionSettings &edited, QWidget *parent = nullptr);
    ~AstroRefractionDialog() override;

public slots:
    /// Shows the settings. A value outside a widget's range is clamped and stored back. If the unit
    /// differs from the one shown, the pressure shown is converted before the stored one is set.
    void initValues();
    void uiReset();
    /// Adapts the pressure's range and value to the unit; does not change the stored unit name.
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
