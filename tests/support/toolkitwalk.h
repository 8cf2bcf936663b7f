// SPDX-License-Identifier: MIT
// Which texts does the toolkit look up, in a walk through a window's context menus and dialogs,
// that no catalogue translates?
#pragma once

#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QMenu>
#include <QSet>
#include <QStringList>
#include <QTimer>
#include <QTranslator>
#include <functional>

/// Installed before all others, so it is asked last: for texts that the others do not translate.
class LastTranslator : public QTranslator
{
public:
    LastTranslator() { QCoreApplication::installTranslator(this); }
    ~LastTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        asked.insert(QLatin1String(context) + QStringLiteral(": ") + QString::fromUtf8(text));
        return {};
    }
    void forget() { asked.clear(); }
    /// Sorted; "context: text" each.
    QStringList texts() const
    {
        QStringList sorted = asked.values();
        sorted.sort();
        return sorted;
    }

private:
    mutable QSet<QString> asked;
};

/// Requests the context menu of `widget` at a place of its own, closes it, and returns its entries.
inline QStringList contextMenuOf(QWidget &widget, QPoint place)
{
    QStringList entries;
    QTimer closing; // some menus block the event until they are closed
    QObject::connect(&closing, &QTimer::timeout, [&entries] {
        if (const auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget()))
            for (const QAction *const action : menu->actions())
                entries.append(action->text());
        while (QWidget *const popup = QApplication::activePopupWidget())
            popup->close();
    });
    closing.start(0);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &event);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return entries;
}

/// Of all visible widgets of a window; returns the entries.
inline QStringList contextMenusIn(QWidget &window)
{
    QStringList entries;
    for (QWidget *const widget : window.findChildren<QWidget *>())
        if (widget->window() == &window && widget->isVisible())
            entries += contextMenuOf(*widget, widget->rect().center());
    return entries;
}
