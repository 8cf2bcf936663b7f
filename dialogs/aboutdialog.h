// SPDX-License-Identifier: MIT
// Which version is this, and whose?
#pragma once

#include <QDialog>
#include <memory>

namespace Ui
{
class AboutDialog;
}

/// The version text and the maker's links; made once, shown on demand.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);
    ~AboutDialog() override;

public slots:
    void on_label_logo_linkActivated(QString link);
    void on_pushButton_ok_clicked();
    /// Takes the texts from the catalogue in force; the version stays.
    void uiReset();

private:
    void showVersion();

    std::unique_ptr<Ui::AboutDialog> ui;
};
