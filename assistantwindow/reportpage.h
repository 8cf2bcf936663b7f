// SPDX-License-Identifier: MIT
// The page with the report, and the buttons that save it.
#pragma once

#include "assistantwindow/report.h"

#include <QCoreApplication>
#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace assistantwindow
{
class ReportPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ReportPage)

public:
    explicit ReportPage(QWidget *parent = nullptr);
    void show(const assistant::Report &report);
    void setTheme(const Theme &theme);
    void retranslate();
    /// "~/" stands for the home folder, in the field too.
    void setFolder(const QString &folder);

    QPushButton *backButton;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// A new name in the folder, which is created; empty if that fails.
    QString fileFor(const QString &ending);
    void save(const QString &ending, const QByteArray &content);
    QByteArray pngOf() const;
    void saved(const QString &file, const QString &failure);

    QWidget *card;
    QLabel *title, *folderName, *outcome;
    QLineEdit *folder;
    QPushButton *png, *csv;
    assistant::Report figures;
    const Theme *colours;
};
} // namespace assistantwindow
