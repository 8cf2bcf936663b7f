// SPDX-License-Identifier: MIT
// How does the window share the sky file with the camera, other windows and editors?
#pragma once

#include "virtualcamera/skystate.h"

#include <QString>
#include <functional>

namespace virtualmount
{
/// The file as it was last read. It is read again before every change, and only the keys that the
/// change touches are written, under a lock that other windows of this program wait for. A file
/// that can not be understood is left as it is. For one thread.
class SkyDocument
{
public:
    using Change = std::function<void(virtualsky::SkyState &)>;

    explicit SkyDocument(QString filePath);

    const QString &filePath() const { return path; }
    /// The last good state; the defaults where there is no file or there was none that is good.
    const virtualsky::SkyState &state() const { return good; }
    /// The state as it was found at first, with every change since then that others have made:
    /// what this object has written is not in it.
    const virtualsky::SkyState &found() const { return others; }
    /// What is wrong with the file, one line; empty = nothing.
    const QString &fault() const { return readFault; }
    /// Why the last change could not be written; empty = it was, or there was nothing to write.
    const QString &writeFault() const { return lastWriteFault; }

    /// Reads the file again. True if the state or the fault is another one than before.
    bool refresh();
    /// Reads, changes and writes. False = the file has a fault, or could not be written: then it
    /// stays as it is.
    bool change(const Change &apply);
    /// Writes the last good state over a file with a fault; nothing where there is none.
    bool replace();

private:
    bool mayWrite(bool locked);
    bool write(const std::string &newText);
    void take(const virtualsky::SkyState &state);

    QString path;
    virtualsky::SkyState good, others;
    QString readFault, lastWriteFault;
    std::string text; // as last read
    bool exists = false;
};
} // namespace virtualmount
