// SPDX-License-Identifier: MIT
// The caption of the tour.
#include "tools/tour/caption.h"

Caption::Caption(QWidget &window, const QWidget &over) : QLabel(&window), part(over)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setStyleSheet("background: rgba(147, 102, 57, 230); color: white; font-size: 13pt;"
                  "padding: 8px 14px; border-radius: 8px;");
    hide();
}

void Caption::say(const QString &text)
{
    setText(text);
    adjustSize();
    const QRect room(part.mapTo(parentWidget(), QPoint()), part.size());
    move(room.center().x() - width() / 2, room.bottom() - height() - 40);
    raise();
    show();
}
