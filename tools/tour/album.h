// SPDX-License-Identifier: MIT
// Where do the pictures of a tour go?
#pragma once

#include <QDir>

class QPixmap;
class QRect;
class QWidget;

/// A folder of pictures, made where it is missing.
class Album
{
public:
    explicit Album(const QString &path);

    /// Saves what a widget shows as `name`.png; throws std::runtime_error where that fails.
    void add(QWidget &widget, const QString &name) const;
    /// Saves a part of what a widget shows as the next of 000.png, 001.png, ...
    void addFrame(QWidget &widget, const QRect &part);

private:
    void save(const QPixmap &picture, const QString &name) const;

    QDir folder;
    int frames = 0;
};
