// SPDX-License-Identifier: MIT
// Saves a tour's pictures.
#include "tools/tour/album.h"

#include <QPixmap>
#include <QRect>
#include <QWidget>
#include <stdexcept>

Album::Album(const QString &path) : folder(path)
{
    folder.mkpath(QStringLiteral("."));
}

void Album::add(QWidget &widget, const QString &name) const
{
    save(widget.grab(), name);
}

void Album::addFrame(QWidget &widget, const QRect &part)
{
    save(widget.grab(part), QStringLiteral("%1").arg(frames++, 3, 10, QLatin1Char('0')));
}

void Album::save(const QPixmap &picture, const QString &name) const
{
    const QString file = folder.filePath(name + QStringLiteral(".png"));
    if (!picture.save(file))
        throw std::runtime_error("cannot write " + file.toStdString());
}
