// SPDX-License-Identifier: MIT
// Divides the screen between the program and the virtual mount.
#include "virtualmount/places.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QThread>
#include <QWidget>
#include <algorithm>

namespace virtualmount
{
namespace
{
/// Below this width, the program's pages and picture are too narrow to use.
constexpr int programNarrowest = 800;
/// Largest useful size: more than the picture at full zoom and the panel need is not used.
constexpr int programWidest = 1620, programHighest = 1040;
constexpr int gap = 2;

QByteArray geometryText(const QRect &place)
{
    return QStringLiteral("%1x%2+%3+%4")
        .arg(place.width())
        .arg(place.height())
        .arg(place.x())
        .arg(place.y())
        .toLatin1();
}
} // namespace

WindowGeometries sharedScreen(const QRect &screen, const QSize &mountSize, const QMargins &frame)
{
    const int across = frame.left() + frame.right();
    const QSize room = screen.size() - QSize(across, frame.top() + frame.bottom());
    const int beside = room.width() - mountSize.width() - across - gap;
    const QSize mount(mountSize.width(), std::min(room.height(), mountSize.height()));
    if (beside < programNarrowest) {
        const QPoint right(screen.right() + 1 - mount.width() - across, screen.top());
        return {false, QRect(screen.topLeft(), room), QRect(right, mount)};
    }
    const QSize program(std::min(beside, programWidest), std::min(room.height(), programHighest));
    const QPoint next = screen.topLeft() + QPoint(program.width() + across + gap, 0);
    return {true, QRect(screen.topLeft(), program), QRect(next, mount)};
}

QByteArray geometriesText(const WindowGeometries &places)
{
    return (places.beside ? "beside " : "behind ") + geometryText(places.program) + ' ' +
           geometryText(places.mount);
}

QMargins windowFrame()
{
    constexpr int patience = 500; // milliseconds
    QWidget probe;
    probe.setAttribute(Qt::WA_ShowWithoutActivating);
    probe.resize(1, 1);
    probe.show();
    const auto margins = [&probe] {
        const QRect outer = probe.frameGeometry(), inner = probe.geometry();
        return QMargins(inner.left() - outer.left(), inner.top() - outer.top(),
                        outer.right() - inner.right(), outer.bottom() - inner.bottom());
    };
    for (const QDeadlineTimer deadline(patience); margins().isNull() && !deadline.hasExpired();) {
        QGuiApplication::processEvents();
        QThread::msleep(10);
    }
    return margins();
}
} // namespace virtualmount
