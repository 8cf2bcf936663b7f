// SPDX-License-Identifier: MIT
// Lays out a page's question and its buttons in rows.
#include "mainwindow/buttonrow.h"

#include <algorithm>
#include <numeric>

QVector<QRect> placedInRows(const QVector<QSize> &sizes, int width, int spacing)
{
    QVector<QRect> places;
    int top = 0;
    for (int first = 0; first < sizes.size();) {
        int end = first, taken = 0, height = 0;
        while (end < sizes.size()) {
            const int with = taken + (end > first ? spacing : 0) + sizes[end].width();
            if (end > first && with > width)
                break;
            taken = with;
            height = std::max(height, sizes[end].height());
            ++end;
        }
        int left = std::max(width - taken, 0);
        for (int i = first; i < end; ++i) {
            const QSize size(std::min(sizes[i].width(), width), sizes[i].height());
            places.append({QPoint(left, top + (height - size.height()) / 2), size});
            left += size.width() + spacing;
        }
        first = end;
        top += height + spacing;
    }
    return places;
}

ButtonRow::~ButtonRow()
{
    qDeleteAll(items);
}

QLayoutItem *ButtonRow::takeAt(int index)
{
    return index >= 0 && index < items.size() ? items.takeAt(index) : nullptr;
}

QVector<QSize> ButtonRow::sizes() const
{
    QVector<QSize> all;
    for (const QLayoutItem *const item : items)
        all.append(item->sizeHint());
    return all;
}

int ButtonRow::heightForWidth(int width) const
{
    int bottom = 0;
    for (const QRect &place : placedInRows(sizes(), width, spacing()))
        bottom = std::max(bottom, place.bottom() + 1);
    return bottom;
}

/// Size of the widest item: every other arrangement has more room.
QSize ButtonRow::minimumSize() const
{
    QSize least;
    for (const QSize &size : sizes())
        least = least.expandedTo(size);
    return least;
}

/// Size with all items in one row.
QSize ButtonRow::sizeHint() const
{
    const QVector<QSize> all = sizes();
    const int width =
        std::accumulate(all.begin(), all.end(), 0, [this](int sum, const QSize &size) {
            return sum + size.width() + (sum > 0 ? spacing() : 0);
        });
    return {width, minimumSize().height()};
}

void ButtonRow::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const QVector<QRect> places = placedInRows(sizes(), rect.width(), spacing());
    for (int i = 0; i < items.size(); ++i)
        items[i]->setGeometry(places[i].translated(rect.topLeft()));
}
