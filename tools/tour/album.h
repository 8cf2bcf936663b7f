// SPDX-License-Identifier: MIT
// Where are a tour's pictures saved?
#pragma once

#include <QDir>

class QPixmap;
class QRect;
class QWidget;

/// A folder of pictures; created if it is missing.
class Album
{
public:
    explicit Album(const QString &path);

    /// Saves a grab of a widget as `name`.png; throws std::runtime_error if that fails.
    void add(QWidget &widget, const QString &name) const;
    /// Saves a grab of a part of a widget as the next of 000.png, 001.png, ...
    void addFrame(QWidget &widget, const QRect &part);

private:
    void save(const QPixmap &picture, const QString &name) const;

    QDir folder;
    int frames = 0;
};
