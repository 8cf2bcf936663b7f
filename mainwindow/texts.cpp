// SPDX-License-Identifier: MIT
// How do the window's texts follow the language?
#include "mainwindow/mainwindow.h"

#include "camera/session.h"
#include "core/languages.h"
#include "ui_mainwindow.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QtDebug>
#include <vector>

namespace
{
/// Form texts that hold data: what they show must survive a language change.
class ShownData
{
public:
    explicit ShownData(const Ui::MainWindow &ui)
    {
        for (QLabel *const label : {ui.label_axisPos, ui.label_curPos, ui.label_eptPos,
                                    ui.label_refStarA_pos, ui.label_refStarB_pos})
            labels.push_back({label, label->text()});
        for (QLabel *const label : {ui.label_showImg, ui.label_templateImg, ui.label_biggerImg})
            if (label->pixmap(Qt::ReturnByValue).isNull() == false)
                pictures.push_back({label, label->pixmap(Qt::ReturnByValue)});
        for (QLineEdit *const edit :
             {ui.lineEditExpose, ui.lineEditGain, ui.lineEditTraffic, ui.lineEditSpeed})
            edits.push_back({edit, edit->text()});
    }

    void restore() const
    {
        for (const auto &[label, text] : labels)
            label->setText(text);
        for (const auto &[label, picture] : pictures)
            label->setPixmap(picture);
        for (const auto &[edit, text] : edits)
            edit->setText(text);
    }

private:
    std::vector<std::pair<QLabel *, QString>> labels;
    std::vector<std::pair<QLabel *, QPixmap>> pictures;
    std::vector<std::pair<QLineEdit *, QString>> edits;
};
} // namespace

void MainWindow::languageChanged()
{
    qDebug() << "current language" << languageCode;
    if (!loadCatalogue(*translator, QStringLiteral("lan"), languageOf(languageCode)))
        return;
    QCoreApplication::installTranslator(translator);
    emit resetUI();
}

void MainWindow::uiReset()
{
    const ShownData shown(*ui);
    const QString title = windowTitle();
    ui->retranslateUi(this);
    shown.restore();
    setWindowTitle(title);
    if (session.camera.cameraConnected)
        ui->actionConnect->setText(tr("Disconnect"));
    applyPageTexts();
    applyRegionTexts();
    placeImageOverlays();
    showNotice();
}

void MainWindow::chooseLanguage(const char *code, bool checked)
{
    if (!checked)
        return;
    languageCode = code;
    emit changeLanguage();
}

void MainWindow::on_actionEnglish_toggled(bool checked)
{
    chooseLanguage("EN", checked);
}
void MainWindow::on_actionChinese_toggled(bool checked)
{
    chooseLanguage("ZH", checked);
}
void MainWindow::on_actionJapanese_toggled(bool checked)
{
    chooseLanguage("JA", checked);
}
void MainWindow::on_actionRussian_toggled(bool checked)
{
    chooseLanguage("RU", checked);
}
void MainWindow::on_actionFrench_toggled(bool checked)
{
    chooseLanguage("FR", checked);
}
void MainWindow::on_actionGerman_toggled(bool checked)
{
    chooseLanguage("DE", checked);
}
void MainWindow::on_actionSpanish_toggled(bool checked)
{
    chooseLanguage("ES", checked);
}
void MainWindow::on_actionPortuguese_toggled(bool checked)
{
    chooseLanguage("PT", checked);
}
void MainWindow::on_actionItalian_toggled(bool checked)
{
    chooseLanguage("IT", checked);
}
void MainWindow::on_actionKorean_toggled(bool checked)
{
    chooseLanguage("KO", checked);
}
