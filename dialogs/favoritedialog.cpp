// SPDX-License-Identifier: MIT
// The favourites dialog.
#include "dialogs/favoritedialog.h"

#include "ui_favoritedialog.h"
#include "widgets/dialogframe.h"

#include <QEvent>

FavoriteDialog::FavoriteDialog(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::FavoriteDialog>())
{
    ui->setupUi(this);
    fixDialogFrame(*this);
}

FavoriteDialog::~FavoriteDialog() = default;

void FavoriteDialog::on_cBox_playMusic_clicked(bool) {}

void FavoriteDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QDialog::changeEvent(event);
}
