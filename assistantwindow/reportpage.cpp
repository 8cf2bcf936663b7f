// SPDX-License-Identifier: MIT
// Shows the report and saves it. A file that cannot be written leaves the report as it is.
#include "assistantwindow/reportpage.h"

#include "assistantwindow/touch.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

namespace assistantwindow
{
ReportPage::ReportPage(QWidget *parent)
    : QWidget(parent),
      backButton(new QPushButton(this)),
      card(new QWidget(this)),
      title(new QLabel),
      folderName(new QLabel),
      outcome(new QLabel),
      folder(new QLineEdit),
      png(new QPushButton),
      csv(new QPushButton),
      colours(&theme(false))
{
    setObjectName(QStringLiteral("reportPage"));
    backButton->setObjectName(QStringLiteral("pushButton_reportBack"));
    png->setObjectName(QStringLiteral("pushButton_savePng"));
    csv->setObjectName(QStringLiteral("pushButton_saveCsv"));
    folder->setObjectName(QStringLiteral("lineEdit_reportFolder"));
    folder->setContextMenuPolicy(Qt::NoContextMenu);
    outcome->setObjectName(QStringLiteral("label_saved"));
    outcome->setWordWrap(true);
    outcome->setMinimumHeight(40);
    title->setProperty("stage", true);
    card->setObjectName(QStringLiteral("reportCard"));
    auto *const head = new QHBoxLayout;
    head->addWidget(backButton);
    head->addWidget(title);
    head->addStretch(1);
    auto *const row = new QHBoxLayout;
    row->addWidget(folderName);
    row->addWidget(folder, 1);
    for (QPushButton *const button : {png, csv})
        row->addWidget(button);
    for (QPushButton *const button : {backButton, png, csv})
        button->setMinimumSize(touchSize, touchSize);
    folder->setMinimumHeight(touchSize);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(8, 6, 8, 8);
    column->addLayout(head);
    column->addWidget(card, 1);
    column->addWidget(outcome);
    column->addLayout(row);
    connect(png, &QPushButton::clicked, this, [this] { save(QStringLiteral("png"), pngOf()); });
    connect(csv, &QPushButton::clicked, this, [this] {
        save(QStringLiteral("csv"), QByteArray::fromStdString(assistant::csvOf(figures)));
    });
    retranslate();
}

void ReportPage::show(const assistant::Report &report)
{
    figures = report;
    update();
}

void ReportPage::setFolder(const QString &path)
{
    const QString home = QDir::homePath() + QLatin1Char('/');
    folder->setText(path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path);
}

QString ReportPage::fileFor(const QString &ending)
{
    const QString typed = folder->text();
    const bool isOfHome = typed.startsWith(QLatin1String("~/"));
    const QDir place(isOfHome ? QDir::homePath() + typed.mid(1) : typed);
    if (typed.isEmpty() || !QDir().mkpath(place.absolutePath()))
        return {};
    const QString moment =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
    return place.filePath(QStringLiteral("polar-alignment-%1.%2").arg(moment, ending));
}

QByteArray ReportPage::pngOf() const
{
    QByteArray bytes;
    QBuffer out(&bytes);
    out.open(QIODevice::WriteOnly);
    reportPicture(figures, locale()).save(&out, "PNG");
    return bytes;
}

void ReportPage::save(const QString &ending, const QByteArray &content)
{
    const QString file = fileFor(ending);
    if (file.isEmpty())
        return saved(file, tr("The folder cannot be made."));
    QSaveFile out(file);
    const bool isWritten =
        out.open(QIODevice::WriteOnly) && out.write(content) == content.size() && out.commit();
    saved(file, isWritten ? QString() : out.errorString());
}

void ReportPage::saved(const QString &file, const QString &failure)
{
    const bool isGood = failure.isEmpty();
    outcome->setText(isGood ? tr("Saved: %1").arg(QDir::toNativeSeparators(file))
                            : tr("Not saved: %1 The report is still here.").arg(failure));
}

void ReportPage::setTheme(const Theme &theme)
{
    colours = &theme;
    backButton->setIcon(glyphIcon(Glyph::Back, theme));
    update();
}

void ReportPage::retranslate()
{
    title->setText(tr("Report"));
    backButton->setText(tr("Back"));
    folderName->setText(tr("Folder"));
    folder->setAccessibleName(tr("Folder"));
    png->setText(tr("Save picture"));
    csv->setText(tr("Save table"));
    png->setToolTip(QStringLiteral("PNG"));
    csv->setToolTip(QStringLiteral("CSV"));
}

void ReportPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colours->border, 1.0));
    painter.setBrush(colours->panel);
    painter.drawRoundedRect(QRectF(card->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    paintReport(painter, card->geometry(), figures, locale(), *colours);
}
} // namespace assistantwindow
