// SPDX-License-Identifier: MIT
// Which key of the sky file is meant, and is a text accepted as a sky file?
#pragma once

#include "virtualcamera/skyfile.h"
#include "virtualcamera/skykeys.h"

#include <QByteArray>
#include <QString>

/// "section.name".
inline QString name(const virtualsky::SkyKey &key)
{
    return QString::fromStdString(std::string(key.section) + '.' + std::string(key.name));
}

inline const virtualsky::SkyKey &keyNamed(const QString &wanted)
{
    for (const virtualsky::SkyKey &key : virtualsky::skyKeys())
        if (name(key) == wanted)
            return key;
    qFatal("no such key");
}

/// Empty = the text was accepted.
inline QString faultOf(const QByteArray &text)
{
    try {
        virtualsky::parse({text.constData(), std::size_t(text.size())});
    } catch (const virtualsky::SkyFileError &error) {
        return error.what();
    }
    return {};
}
