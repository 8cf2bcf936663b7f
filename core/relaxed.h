// SPDX-License-Identifier: MIT
// How do two threads share a plain number or flag? As a relaxed atomic that is used like a plain
// value.
#pragma once

#include <QPointF>
#include <atomic>

/// A value that one thread writes and another reads without a lock. No ordering is guaranteed
/// between two such values: a reader may see the old value of one and the new value of the other.
template <typename T> class Relaxed
{
public:
    Relaxed(T initial = T()) noexcept : value(initial) {}
    Relaxed(const Relaxed &) = delete;
    Relaxed &operator=(const Relaxed &) = delete;

    operator T() const noexcept { return load(); }
    T load() const noexcept { return value.load(std::memory_order_relaxed); }
    T operator=(T next) noexcept
    {
        value.store(next, std::memory_order_relaxed);
        return next;
    }

private:
    std::atomic<T> value;
};

/// A point in frame pixels (x right, y down) whose coordinates are shared separately: a reader may
/// see the x of one write and the y of another, which the next frame corrects.
struct RelaxedPoint {
    Relaxed<double> x, y;

    QPointF load() const noexcept { return {x.load(), y.load()}; }
    operator QPointF() const noexcept { return load(); }
    RelaxedPoint &operator=(const QPointF &point) noexcept
    {
        x = point.x();
        y = point.y();
        return *this;
    }
};
