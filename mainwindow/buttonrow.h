// SPDX-License-Identifier: MIT
// How do a page's question and its buttons share the available width?
#pragma once

#include <QLayout>
#include <QList>
#include <QRect>
#include <QSize>
#include <QVector>

/// Rectangles of items of the given sizes in `width` pixels. They run from the top left to the
/// right in as few rows as possible; each row is right-aligned and its items are vertically
/// centred. An item that is wider than `width` is cut to it.
QVector<QRect> placedInRows(const QVector<QSize> &sizes, int width, int spacing);

/// A layout that uses placedInRows.
class ButtonRow : public QLayout
{
public:
    using QLayout::QLayout;
    ~ButtonRow() override;

    void addItem(QLayoutItem *item) override { items.append(item); }
    int count() const override { return items.size(); }
    QLayoutItem *itemAt(int index) const override { return items.value(index); }
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect &rect) override;

private:
    QVector<QSize> sizes() const;

    QList<QLayoutItem *> items;
};
