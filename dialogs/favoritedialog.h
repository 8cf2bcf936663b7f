// SPDX-License-Identifier: MIT
// Which other preferences does the user have? So far none has an effect.
#pragma once

#include <QDialog>
#include <memory>

namespace Ui
{
class FavoriteDialog;
}

/// One check box, which changes nothing.
class FavoriteDialog : public QDialog
{
    Q_OBJECT

public:
    explicit FavoriteDialog(QWidget *parent = nullptr);
    ~FavoriteDialog() override;

public slots:
    void on_cBox_playMusic_clicked(bool checked);

protected:
    /// Retranslates the form when the language changes.
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::FavoriteDialog> ui;
};
