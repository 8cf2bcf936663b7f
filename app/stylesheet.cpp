// SPDX-License-Identifier: MIT
// Reads and applies the style sheet.
#include "app/stylesheet.h"

#include <QApplication>
#include <QFile>

void applyStyleSheet(QApplication &application, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = file.readAll();
    application.setStyleSheet(QString::fromUtf8(bytes.constData()));
}
