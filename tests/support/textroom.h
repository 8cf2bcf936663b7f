// SPDX-License-Identifier: MIT
// Has every text of a window the room that it needs?
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QStringList>
#include <algorithm>

/// What `has` is short of `needed`, in words; empty if it is not.
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

/// What is missing of the room that the text of a label, button or combo box needs; empty if
/// nothing is.
inline QString lackOf(const QWidget &widget)
{
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    const bool isText = (label && !label->text().isEmpty() && !label->text().startsWith('<')) ||
                        qobject_cast<const QAbstractButton *>(&widget) ||
                        qobject_cast<const QComboBox *>(&widget);
    if (!isText)
        return {};
    const bool wraps = label && label->wordWrap();
    // Text may use the line spacing above and below its letters: what counts is the ink.
    const QFontMetrics metrics(widget.font());
    const int neededWidth = wraps ? 0 : widget.sizeHint().width();
    const int neededHeight = wraps ? widget.heightForWidth(widget.width())
                                   : std::min(widget.sizeHint().height(), metrics.ascent() + 2);
    return lack(widget, {neededWidth, neededHeight}, widget.size());
}

/// Layouts within layouts settle one after the other.
inline void settle()
{
    for (int i = 0; i < 6; ++i)
        QCoreApplication::processEvents();
}

/// One line a widget of the window, those in dialogs of its own left out.
inline QStringList lacksIn(const QWidget &window)
{
    QStringList lacks;
    for (const QWidget *const widget : window.findChildren<QWidget *>())
        if (widget->isVisibleTo(&window) && widget->window() == &window)
            if (const QString lack = lackOf(*widget); !lack.isEmpty())
                lacks.append(lack);
    return lacks;
}
