// SPDX-License-Identifier: MIT
// Which button gets the second press of a double click if the first press has changed the page?
#pragma once

#include <QMouseEvent>
#include <QPoint>
#include <QPushButton>

/// Screen position and window-system time of the last press of a page's button.
struct ButtonPress {
    QPoint place;
    ulong time = 0; ///< milliseconds
    bool happened = false;
};

/// Whether `doubleClick` began with that press and so was meant for that button.
bool beganWith(const ButtonPress &press, const QMouseEvent &doubleClick);

/// A button on an instruction page. The second press of a double click on one page must not count
/// as a click on the next page, whose button may be in the same place.
class PageButtonWidget : public QPushButton
{
public:
    /// @param lastPress is updated on every press
    PageButtonWidget(ButtonPress &lastPress, QWidget *parent);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    ButtonPress &last;
};
