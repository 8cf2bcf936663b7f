// SPDX-License-Identifier: MIT
// Which pictures wait for the window?
#pragma once

#include "core/relaxed.h"

#include <QImage>
#include <QList>
#include <QMutex>

/// A short queue with its lock: the capture thread appends, the GUI thread takes.
class PictureQueue
{
public:
    /// The most pictures that wait; a further one is dropped.
    static constexpr int maxLength = 2;

    /// Appends `picture` if there is room and `stopped` is not set; false if it was dropped. The
    /// flag is read under the lock: a queue that is emptied after the flag was set stays empty.
    bool append(const QImage &picture, const Relaxed<bool> &stopped = false);
    /// Takes the oldest picture out; null if none waits.
    QImage takeOldest();
    void clear();
    int size() const;
    bool isEmpty() const { return size() == 0; }
    /// A copy of what waits, the oldest first.
    QList<QImage> waiting() const;

private:
    mutable QMutex mutex;
    QList<QImage> pictures;
};
