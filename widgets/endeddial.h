// SPDX-License-Identifier: MIT
// How does a dial that does not wrap behave where its two ends meet?
#pragma once

#include <QDial>
#include <QPoint>

/// A dial that stays at its end when it is dragged past it, until it is dragged back. A plain QDial
/// jumps to the other end as soon as the pointer passes below the centre.
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

    QPoint last;   ///< the pointer's last position in this drag
    int turns = 0; ///< crossings below the centre: right to left minus left to right
};
