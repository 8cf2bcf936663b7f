// SPDX-License-Identifier: MIT
// How is it made sure that no window emits anything but red?
#pragma once

#include <QGraphicsEffect>
#include <QObject>

namespace assistantwindow
{
/// Draws its widget with every pixel reddened.
class RedEffect : public QGraphicsEffect
{
protected:
    void draw(QPainter *painter) override;
};

/// While on, every top-level window of the application, also menus, lists and tool tips that open
/// later, has a RedEffect: nothing that a style draws on its own escapes.
class RedLight : public QObject
{
public:
    explicit RedLight(QObject *parent = nullptr);
    ~RedLight() override;
    void setOn(bool on);
    bool isOn() const { return on; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool on = false;
};
} // namespace assistantwindow
