// SPDX-License-Identifier: MIT
// A loaded camera library with a sky file of its own, for a test that runs in one thread.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdint>

#include "tests/virtualcamera/veldixlibrary.h"
#include "virtualcamera/skyfile.h"

constexpr std::uint32_t failure = 0xFFFFFFFFu;
constexpr int exposureControl = 8;

// Before the library is loaded: it reads the variable only once.
struct SkyFolder {
    SkyFolder() { qputenv("QUORVANDEL_SKY", path().toUtf8()); }
    QString path() const { return folder.filePath("sky.ini"); }
    QTemporaryDir folder;
};

inline SkyFolder &skyFolder()
{
    static SkyFolder folder;
    return folder;
}

inline VeldixLibrary &veldix()
{
    skyFolder();
    static VeldixLibrary library;
    return library;
}

inline void setSky(const char *text)
{
    QVERIFY(virtualsky::writeAtomically(skyFolder().path().toStdString(), text));
}

inline QByteArray idAt(std::int32_t index)
{
    char id[38] = "untouched";
    return veldix().getId(index, id) == 0 ? QByteArray(id) : QByteArray();
}
