// SPDX-License-Identifier: MIT
// How does a dial that does not wrap behave where its two ends meet?
#pragma once

#include <QDial>
#include <QPoint>

/// A dial that is held at its end when it is dragged on past it, until it is dragged back: the
/// toolkit's own leaps to the other end as soon as the pointer passes below the middle.
class EndedDial : public QDial
{
public:
    using QDial::QDial;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void follow(QPoint pointer);
    QPoint heldPlace(QPoint pointer) const;

    QPoint last;   ///< the pointer's last place in this drag
    int turns = 0; ///< how often it has passed below the middle, from the right to the left
};
