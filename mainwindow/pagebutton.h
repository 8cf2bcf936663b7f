// SPDX-License-Identifier: MIT
// Whose are the two presses of a double click, when the first has changed what lies under it?
#pragma once

#include <QMouseEvent>
#include <QPoint>
#include <QPushButton>

/// Where on the screen, and at which time of the window system's, a page's button was pressed last.
struct ButtonPress {
    QPoint place;
    ulong time = 0; ///< milliseconds
    bool happened = false;
};

/// Whether `doubleClick` began with that press, and so was meant for the button.
bool beganWith(const ButtonPress &press, const QMouseEvent &doubleClick);

/// A button on an instruction page. What a hand that clicks twice meant for one page is not taken
/// for a click on the next, whose button may lie in the same place.
class PageButtonWidget : public QPushButton
{
public:
    /// @param lastPress is told of every press
    PageButtonWidget(ButtonPress &lastPress, QWidget *parent);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    ButtonPress &last;
};
