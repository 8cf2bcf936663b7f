// SPDX-License-Identifier: MIT
// How does the window share the sky file with the camera, other windows and editors?
#pragma once

#include "virtualcamera/skystate.h"

#include <QString>
#include <functional>

namespace virtualmount
{
/// The file as it was last read. It is read again before each change, and only the changed keys are
/// written, under a lock that other windows of this program respect. A file that cannot be parsed
/// stays unchanged. Not thread-safe.
class SkyDocument
{
public:
    using Change = std::function<void(virtualsky::SkyState &)>;

    explicit SkyDocument(QString filePath);

    const QString &filePath() const { return path; }
    /// The last valid state; the defaults if there is no file or no valid state so far.
    const virtualsky::SkyState &state() const { return good; }
    /// The initial state plus all later changes by others; changes written by this object are
    /// excluded.
    const virtualsky::SkyState &found() const { return others; }
    /// What is wrong with the file, one line; empty = no fault.
    const QString &fault() const { return readFault; }
    /// Why the last change could not be written; empty = written, or nothing to write.
    const QString &writeFault() const { return lastWriteFault; }

    /// Reads the file again. True if the state or the fault has changed.
    bool refresh();
    /// Reads, changes and writes. False if the file has a fault or could not be written; it then
    /// stays unchanged.
    bool change(const Change &apply);
    /// Overwrites a file that has a fault with the last valid state; otherwise does nothing.
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
