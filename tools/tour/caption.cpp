// SPDX-License-Identifier: MIT
// The tour's caption.
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
    constexpr int edge = 10;
    const QRect room(part.mapTo(parentWidget(), QPoint()), part.size());
    setWordWrap(false);
    setText(text);
    adjustSize();
    const int widest = room.width() - 2 * edge;
    if (width() > widest) {
        setWordWrap(true);
        resize(widest, heightForWidth(widest));
    }
    move(room.center().x() - width() / 2, room.bottom() - height() - 40);
    raise();
    show();
}
