// SPDX-License-Identifier: MIT
// Reads, changes and writes the sky file without losing anyone's changes.
#include "virtualmount/skydocument.h"

#include "virtualcamera/skyfile.h"
#include "virtualcamera/skykeys.h"
#include "virtualmount/faulttexts.h"
#include "virtualmount/skytext.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>
#include <cerrno>
#include <utility>

namespace virtualmount
{
namespace
{
using virtualsky::SkyKey;
using virtualsky::SkyState;

constexpr int lockMilliseconds = 500; // a write takes a few milliseconds

struct FileText {
    bool exists = false;
    std::string text;
    QString fault; // empty = the text was read
};

FileText readFile(const QString &path)
{
    if (!QFileInfo::exists(path))
        return {};
    try {
        return {true, virtualsky::readText(QFile::encodeName(path).toStdString()), {}};
    } catch (const virtualsky::SkyFileError &error) {
        // Removed or replaced in between: the next reload reports it.
        return QFileInfo::exists(path) ? FileText{true, {}, faultText(error)} : FileText{};
    }
}

/// Held from reading to writing. If no lock file can be created, the file cannot be written either,
/// and the write reports the reason.
class Lock
{
public:
    explicit Lock(const QString &path) : file(path + QStringLiteral(".lock"))
    {
        // QLockFile polls too slowly for a knob that is being turned.
        QElapsedTimer waited;
        waited.start();
        while (!file.tryLock(0)) {
            free = file.error() != QLockFile::LockFailedError;
            if (free || waited.hasExpired(lockMilliseconds))
                return;
            QThread::msleep(2);
        }
        free = true;
    }
    bool isOurs() const { return free; }

private:
    QLockFile file;
    bool free = false;
};
} // namespace

SkyDocument::SkyDocument(QString filePath) : path(std::move(filePath))
{
    refresh();
}

bool SkyDocument::refresh()
{
    FileText now = readFile(path);
    const QString faultBefore = readFault;
    if (now.fault.isEmpty() && readFault.isEmpty() && now.exists == exists && now.text == text)
        return false;
    const std::string textBefore = std::exchange(text, std::move(now.text));
    const bool existed = std::exchange(exists, now.exists);
    readFault = now.fault;
    if (!exists) {
        take(SkyState());
        return existed || !faultBefore.isEmpty();
    }
    if (readFault.isEmpty()) {
        try {
            take(virtualsky::parse(text));
        } catch (const virtualsky::SkyFileError &error) {
            readFault = faultText(error);
        }
    }
    return !existed || text != textBefore || readFault != faultBefore;
}

/// Adopts a state written by others.
void SkyDocument::take(const SkyState &state)
{
    for (const SkyKey &key : virtualsky::skyKeys()) {
        const std::string value = keyText(state, key);
        if (value != keyText(good, key))
            setKey(others, key, value);
    }
    good = state;
}

bool SkyDocument::write(const std::string &newText)
{
    if (newText == text && exists)
        return true;
    try {
        const SkyState written = virtualsky::parse(newText);
        if (!virtualsky::writeAtomically(QFile::encodeName(path).toStdString(), newText))
            throw virtualsky::SkyFileError(0, {}, virtualsky::SkyFault::ofSystem(errno));
        good = written;
    } catch (const virtualsky::SkyFileError &error) {
        lastWriteFault = faultText(error);
        return false;
    }
    text = newText;
    exists = true;
    return true;
}

/// Returns whether the lock is held; if not, sets lastWriteFault.
bool SkyDocument::mayWrite(bool locked)
{
    lastWriteFault.clear();
    if (!locked)
        lastWriteFault =
            QCoreApplication::translate("SkyDocument", "another program holds it locked");
    return locked;
}

bool SkyDocument::change(const Change &apply)
{
    const Lock lock(path);
    if (!mayWrite(lock.isOurs()))
        return false;
    refresh();
    if (!readFault.isEmpty())
        return false;
    SkyState after = good;
    apply(after);
    return write(exists ? withChanges(text, good, after) : virtualsky::format(after));
}

bool SkyDocument::replace()
{
    const Lock lock(path);
    if (!mayWrite(lock.isOurs()))
        return false;
    refresh();
    if (readFault.isEmpty())
        return true;
    if (!write(virtualsky::format(good)))
        return false;
    readFault.clear();
    return true;
}
} // namespace virtualmount
