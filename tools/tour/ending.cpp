// SPDX-License-Identifier: MIT
// Waits for a key press.
#include "tools/tour/ending.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QWidget>

namespace
{
bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr ||
           key == Qt::Key_Super_L || key == Qt::Key_Super_R;
}

/// Intercepts the keys of the application.
class KeyTaker : public QObject
{
public:
    KeyTaker(QWidget &shown, QEventLoop &waiting) : window(shown), loop(waiting)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &window && event->type() == QEvent::Close)
            loop.quit();
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept(); // suppresses shortcuts: the key press itself follows
            return true;
        }
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto &key = static_cast<const QKeyEvent &>(*event);
        if (!key.isAutoRepeat() && !isModifier(key.key()))
            loop.quit();
        return true;
    }

private:
    QWidget &window;
    QEventLoop &loop;
};
} // namespace

bool isWatched(bool isFast, bool savesPictures, const QString &platform)
{
    const bool isSeen =
        platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
    return isSeen && !isFast && !savesPictures;
}

void waitForKey(QWidget &window)
{
    QEventLoop loop;
    const KeyTaker taker(window, loop);
    if (window.isVisible())
        loop.exec();
}
