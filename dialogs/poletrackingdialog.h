// SPDX-License-Identifier: MIT
// By what angle has the sky rotated since the reference stars were found?
#pragma once

#include <QDialog>
#include <memory>

namespace Ui
{
class PoleTrackingDialog;
}

/// A dial from 0 to 360 degrees that emits each of its values.
class PoleTrackingDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PoleTrackingDialog(QWidget *parent = nullptr);
    ~PoleTrackingDialog() override;

signals:
    /// @param degree positive clockwise on the screen
    void trackPole(double degree);

public slots:
    void uiReset();
    void on_pushButton_tracking_minus_clicked();
    void on_pushButton_tracking_add_clicked();
    void on_pushButton_reset_clicked();
    void on_dial_tracking_valueChanged(int value);

private:
    std::unique_ptr<Ui::PoleTrackingDialog> ui;
};
