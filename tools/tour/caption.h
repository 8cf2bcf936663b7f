// SPDX-License-Identifier: MIT
// What is happening at the moment? A line of text above the lower edge of a part of the window.
#pragma once

#include <QLabel>

/// Hidden until there is a text; transparent to the mouse. A text that is wider than the part is
/// wrapped.
class Caption : public QLabel
{
    Q_OBJECT

public:
    /// @param over the part of the window that the caption covers
    Caption(QWidget &window, const QWidget &over);
    void say(const QString &text);

private:
    const QWidget &part;
};
