// SPDX-License-Identifier: MIT
// Gives every top-level window the effect, when it is shown.
#include "assistantwindow/redlight.h"

#include "assistantwindow/theme.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace assistantwindow
{
void RedEffect::draw(QPainter *painter)
{
    QPoint offset;
    const QPixmap source = sourcePixmap(Qt::LogicalCoordinates, &offset, NoPad);
    if (!source.isNull())
        painter->drawImage(offset, reddened(source.toImage()));
}

RedLight::RedLight(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

RedLight::~RedLight()
{
    setOn(false);
}

void RedLight::setOn(bool newOn)
{
    on = newOn;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows) {
        const bool has = dynamic_cast<RedEffect *>(window->graphicsEffect()) != nullptr;
        if (on && !has)
            window->setGraphicsEffect(new RedEffect);
        else if (!on && has)
            window->setGraphicsEffect(nullptr);
    }
}

bool RedLight::eventFilter(QObject *watched, QEvent *event)
{
    const bool opens = event->type() == QEvent::Polish || event->type() == QEvent::Show;
    if (on && opens && watched->isWidgetType()) {
        auto *const widget = static_cast<QWidget *>(watched);
        if (widget->isWindow() && !widget->graphicsEffect())
            widget->setGraphicsEffect(new RedEffect);
    }
    return QObject::eventFilter(watched, event);
}
} // namespace assistantwindow
