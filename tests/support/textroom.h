// SPDX-License-Identifier: MIT
// Does every text of a window have the room that it needs?
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QStringList>
#include <algorithm>

/// How far `has` falls short of `needed`, in words; empty if it is enough.
inline QString lack(const QWidget &widget, QSize needed, QSize has)
{
    if (needed.width() <= has.width() && needed.height() <= has.height())
        return {};
    return QStringLiteral("%1 needs %2 x %3 and has %4 x %5")
        .arg(widget.objectName())
        .arg(needed.width())
        .arg(needed.height())
        .arg(has.width())
        .arg(has.height());
}

/// How much room the text of a label, button or combo box lacks; empty if none.
inline QString lackOf(const QWidget &widget)
{
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    const bool isText = (label && !label->text().isEmpty() && !label->text().startsWith('<')) ||
                        qobject_cast<const QAbstractButton *>(&widget) ||
                        qobject_cast<const QComboBox *>(&widget);
    if (!isText)
        return {};
    const bool wraps = label && label->wordWrap();
    // Text may use the line spacing above and below its letters: only the ink counts.
    const QFontMetrics metrics(widget.font());
    const int neededWidth = wraps ? 0 : widget.sizeHint().width();
    const int neededHeight = wraps ? widget.heightForWidth(widget.width())
                                   : std::min(widget.sizeHint().height(), metrics.ascent() + 2);
    return lack(widget, {neededWidth, neededHeight}, widget.size());
}

/// Nested layouts settle one after the other.
inline void settle()
{
    for (int i = 0; i < 6; ++i)
        QCoreApplication::processEvents();
}

/// One line per widget of the window, except those in its own dialogs.
inline QStringList lacksIn(const QWidget &window)
{
    QStringList lacks;
    for (const QWidget *const widget : window.findChildren<QWidget *>())
        if (widget->isVisibleTo(&window) && widget->window() == &window)
            if (const QString lack = lackOf(*widget); !lack.isEmpty())
                lacks.append(lack);
    return lacks;
}
