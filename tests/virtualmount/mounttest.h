// SPDX-License-Identifier: MIT
// What do the virtual mount's tests share? A sky file of their own, read and written directly.
#pragma once

#include "virtualcamera/skyfile.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QtTest>

/// A sky file in a temporary folder; there is none at first.
class SkyFileFixture
{
public:
    QString path() const { return folder.filePath(QStringLiteral("sky.ini")); }

    /// Like an editor that truncates and writes.
    void writeText(const QByteArray &text) const
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(path()));
    }

    QByteArray text() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// What the camera would see; ends the test run if it would refuse the file.
    virtualsky::SkyState state() const
    {
        try {
            return virtualsky::parse(text().toStdString());
        } catch (const virtualsky::SkyFileError &error) {
            qFatal("%s", error.what());
        }
    }

private:
    QTemporaryDir folder;
};
