// SPDX-License-Identifier: MIT
// The About dialog.
#include "dialogs/aboutdialog.h"

#include "ui_aboutdialog.h"
#include "widgets/dialogframe.h"

#include <QDesktopServices>
#include <QFont>
#include <QFontMetrics>
#include <QUrl>

namespace
{
/// Reduces the label's font by whole points until the text fits the label's width: if the form's
/// font is not installed, its substitute may be wider.
void fitFont(QLabel &label)
{
    QFont font = label.font();
    while (font.pointSize() > 1 &&
           QFontMetrics(font).horizontalAdvance(label.text()) > label.width())
        font.setPointSize(font.pointSize() - 1);
    label.setFont(font);
}
} // namespace

AboutDialog::AboutDialog(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::AboutDialog>())
{
    ui->setupUi(this);
    showVersion();
    fixDialogFrame(*this);
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::on_label_logo_linkActivated(QString link)
{
    QDesktopServices::openUrl(QUrl(link));
}

void AboutDialog::on_pushButton_ok_clicked()
{
    close();
}

void AboutDialog::uiReset()
{
    ui->retranslateUi(this);
    showVersion();
}

void AboutDialog::showVersion()
{
    ui->label_version->setText(
        QStringLiteral("Quorvandel %1, release on %2").arg("21.9.17", "2021-09-17"));
    fitFont(*ui->label_version);
}
