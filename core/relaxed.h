// SPDX-License-Identifier: MIT
// How do two threads share a plain number or flag? As a relaxed atomic that reads like the value.
#pragma once

#include <QPointF>
#include <atomic>

/// A value that one thread writes and another reads without a lock. No ordering is promised
/// between two such values: a reader may see one before and the other after a change.
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

/// A point in frame pixels (x right, y down) whose coordinates are shared one by one: a reader may
/// see the x of one write and the y of another, which the next frame mends.
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
