// SPDX-License-Identifier: MIT
// Queues pictures from the capture thread for the window.
#include "camera/picturequeue.h"

#include "core/locker.h"

bool PictureQueue::append(const QImage &picture, const Relaxed<bool> &stopped)
{
    const Locker lock(mutex);
    if (stopped || pictures.size() >= maxLength)
        return false;
    pictures.append(picture);
    return true;
}

QImage PictureQueue::takeOldest()
{
    const Locker lock(mutex);
    return pictures.isEmpty() ? QImage() : pictures.takeFirst();
}

void PictureQueue::clear()
{
    const Locker lock(mutex);
    pictures.clear();
}

int PictureQueue::size() const
{
    const Locker lock(mutex);
    return pictures.size();
}

QList<QImage> PictureQueue::waiting() const
{
    const Locker lock(mutex);
    return pictures;
}
