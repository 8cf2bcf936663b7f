// SPDX-License-Identifier: MIT
// How is a picture scaled or converted without the toolkit's threads?
#pragma once

#include <QImage>
#include <QPixmap>
#include <QRunnable>
#include <QThreadPool>
#include <atomic>
#include <future>
#include <type_traits>
#include <utility>

/// Runs `work` in a thread of the toolkit's pool and waits for its result. There, the toolkit
/// scales and converts a picture in that one thread. Elsewhere it shares a large picture out among
/// the pool's threads and waits for them by a semaphore on its own stack, to which, in Qt 5.15, the
/// last of them may still write after the wait is over (docs/reliability.md).
template <typename Work> std::invoke_result_t<Work> inPoolThread(Work work)
{
    class Task : public QRunnable
    {
    public:
        explicit Task(Work wanted) : task(std::move(wanted)) {}
        void run() override
        {
            (void)made.load(std::memory_order_acquire);
            task();
        }
        std::packaged_task<std::invoke_result_t<Work>()> task;
        std::atomic<bool> made{false}; // orders the two threads' use of `task`
    };
    auto *const task = new Task(std::move(work)); // the pool deletes it
    auto result = task->task.get_future();
    task->made.store(true, std::memory_order_release);
    QThreadPool::globalInstance()->start(task);
    return result.get();
}

/// As QPixmap::fromImage() makes it, which then has nothing to convert.
inline QPixmap pixmapOf(const QImage &picture)
{
    const auto format =
        picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return QPixmap::fromImage(inPoolThread([&] { return picture.convertToFormat(format); }));
}
