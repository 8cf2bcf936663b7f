// SPDX-License-Identifier: MIT
// What is being done right now? A line of text over the lower edge of a window's part.
#pragma once

#include <QLabel>

/// Shown only once there is something to say; the mouse goes through it. A text that is wider than
/// the part is wrapped.
class Caption : public QLabel
{
    Q_OBJECT

public:
    /// @param over the part of the window that the caption lies over
    Caption(QWidget &window, const QWidget &over);
    void say(const QString &text);

private:
    const QWidget &part;
};
