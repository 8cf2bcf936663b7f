// SPDX-License-Identifier: MIT
// Which pictures are waiting to be shown?
#pragma once

#include "core/relaxed.h"

#include <QImage>
#include <QList>
#include <QMutex>

/// A short queue with its lock: the capture thread appends, the GUI thread takes.
class PictureQueue
{
public:
    /// Capacity; further pictures are dropped.
    static constexpr int maxLength = 2;

    /// Appends `picture` if there is room and `stopped` is not set; false if it was dropped. The
    /// flag is read under the lock, so that a queue cleared after the flag was set stays empty.
    bool append(const QImage &picture, const Relaxed<bool> &stopped = false);
    /// Removes and returns the oldest picture; null if the queue is empty.
    QImage takeOldest();
    void clear();
    int size() const;
    bool isEmpty() const { return size() == 0; }
    /// A copy of the queue, oldest first.
    QList<QImage> waiting() const;

private:
    mutable QMutex mutex;
    QList<QImage> pictures;
};
