// SPDX-License-Identifier: MIT
// Which version is this, and who makes it?
#pragma once

#include <QDialog>
#include <memory>

namespace Ui
{
class AboutDialog;
}

/// The version text and the maker's links; created once, shown on demand.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget *parent = nullptr);
    ~AboutDialog() override;

public slots:
    void on_label_logo_linkActivated(QString link);
    void on_pushButton_ok_clicked();
    /// Reloads the texts from the current catalogue and shows the version again.
    void uiReset();

private:
    void showVersion();

    std::unique_ptr<Ui::AboutDialog> ui;
};
