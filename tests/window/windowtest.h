// SPDX-License-Identifier: MIT
// What do the tests of the window share? Finding widgets, comparing pictures, the settings file.
#pragma once

#include "core/settingsfile.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QList>
#include <QPair>
#include <QPixmap>
#include <QPushButton>
#include <QtTest>

/// The child of that class and name; ends the test run if there is none.
template <typename T> T &named(const QObject &parent, const QString &name)
{
    T *const found = parent.findChild<T *>(name);
    if (!found)
        qFatal("no widget %s", qPrintable(name));
    return *found;
}

/// Whether a widget becomes visible as soon as its window does.
inline bool isOpen(const QWidget &widget)
{
    return !widget.isHidden();
}

/// Whether two pictures have the same pixels; two null ones do not.
inline bool samePixels(const QPixmap &a, const QPixmap &b)
{
    const auto pixels = [](const QPixmap &p) {
        return p.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    return !a.isNull() && pixels(a) == pixels(b);
}

inline bool shows(const QLabel &label, const QString &picture)
{
    return samePixels(label.pixmap(Qt::ReturnByValue), QPixmap(picture));
}

inline bool hasIcon(const QPushButton &button, const QString &picture)
{
    const QSize size = button.iconSize();
    return samePixels(button.icon().pixmap(size), QIcon(picture).pixmap(size));
}

/// The lines of a settings file.
using IniLines = QStringList;

inline void removeSettings()
{
    QFile::remove(settingsFilePath());
}

inline void writeIni(const QString &path, const IniLines &lines)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("cannot write %s", qPrintable(path));
    file.write((lines.join('\n') + '\n').toUtf8());
}

/// The lines of a file that are not empty.
inline IniLines iniLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).remove('\r').split('\n', Qt::SkipEmptyParts);
}
