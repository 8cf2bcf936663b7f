// SPDX-License-Identifier: MIT
// Which message boxes come up, what do they say, and how are they answered?
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <utility>

/// What a message box showed.
struct Box {
    QMessageBox::Icon icon;
    QString title;
    QString text;
    QList<QMessageBox::StandardButton> buttons;
    QMessageBox::StandardButton defaultButton;
    bool modal;
    bool hasParent;
    bool onWindow; ///< its parent is a main window
};

inline bool operator==(const Box &a, const Box &b)
{
    return a.icon == b.icon && a.title == b.title && a.text == b.text && a.buttons == b.buttons &&
           a.defaultButton == b.defaultButton && a.modal == b.modal && a.hasParent == b.hasParent &&
           a.onWindow == b.onWindow;
}

inline char *toString(const Box &box)
{
    const QString text =
        QStringLiteral("icon %1, \"%2\", \"%3\", %4 buttons, default %5, modal %6, parent %7 %8")
            .arg(box.icon)
            .arg(box.title, box.text)
            .arg(box.buttons.size())
            .arg(box.defaultButton)
            .arg(box.modal)
            .arg(box.hasParent)
            .arg(box.onWindow);
    return qstrdup(qPrintable(text));
}

/// A modal box over the main window with only an Ok button.
inline Box okBox(QMessageBox::Icon icon, const QString &title, const QString &text)
{
    return {icon, title, text, {QMessageBox::Ok}, QMessageBox::Ok, true, true, true};
}

/// The box that names the operation that prevented the connection.
inline Box failedBox(const char *operation)
{
    return okBox(QMessageBox::Critical, "Error",
                 QStringLiteral("Can not connect Quorvandel as %1 error!").arg(operation));
}

/// While it exists, records every message box that appears and answers it; any other modal dialog
/// is passed to `onDialog`.
class BoxWatcher : public QObject
{
public:
    /// Answers with each box's first button.
    explicit BoxWatcher(std::function<void(QWidget *)> onDialog = {})
        : dialogHandler(std::move(onDialog))
    {
        connect(&timer, &QTimer::timeout, this, &BoxWatcher::look);
        timer.start(5);
    }
    /// @param button that every box must have
    explicit BoxWatcher(QMessageBox::StandardButton button) : BoxWatcher() { answer = button; }

    const QList<Box> &boxes() const { return seen; }

private:
    void look()
    {
        QWidget *const widget = QApplication::activeModalWidget();
        auto *const box = qobject_cast<QMessageBox *>(widget);
        if (!box) {
            if (widget && dialogHandler)
                dialogHandler(widget);
            return;
        }
        Box found{
            box->icon(), box->windowTitle(), box->text(), {}, QMessageBox::NoButton, false, false,
            false};
        found.defaultButton = box->standardButton(box->defaultButton());
        found.modal = box->isModal();
        found.hasParent = box->parentWidget() != nullptr;
        found.onWindow = qobject_cast<QMainWindow *>(box->parentWidget()) != nullptr;
        for (QAbstractButton *const button : box->buttons())
            found.buttons.append(box->standardButton(button));
        seen.append(found);
        QAbstractButton *const pressed =
            answer == QMessageBox::NoButton ? box->buttons().constFirst() : box->button(answer);
        if (!pressed)
            qFatal("the box \"%s\" has no such button", qPrintable(box->text()));
        pressed->click();
    }

    std::function<void(QWidget *)> dialogHandler;
    QMessageBox::StandardButton answer = QMessageBox::NoButton; ///< none: the first
    QList<Box> seen;
    QTimer timer;
};
