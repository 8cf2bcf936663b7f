// SPDX-License-Identifier: MIT
// Paints the circular magnified view.
#include "widgets/magnifierwidget.h"

#include "core/saturate.h"

#include <QBrush>
#include <QPainter>
#include <QPen>
#include <QTransform>
#include <algorithm>

namespace
{
constexpr int margin = 2;
/// Largest side of the square that is cut out, picture pixels, whatever the zoom.
constexpr int sideLimit = 4096;

QPen solidPen(const QColor &colour, int width)
{
    return {QBrush(colour), qreal(width), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
}
} // namespace

MagnifierWidget::MagnifierWidget(QWidget *parent) : MagnifierWidget(120, 120, parent) {}

MagnifierWidget::MagnifierWidget(int width, int height, QWidget *parent)
    : QWidget(parent), viewWidth(width), viewHeight(height)
{
    setGeometry(margin, margin, width + margin, height + margin);
}

QPoint clampedCentre(QPoint centre, int half, QSize size)
{
    return {std::min(std::max(centre.x(), half), size.width() - half),
            std::min(std::max(centre.y(), half), size.height() - half)};
}

void MagnifierWidget::takeRegion()
{
    const int side = std::clamp(saturatingInt(double(float(viewWidth) / zoom)), 0, sideLimit);
    const int half = side / 2;
    centre = clampedCentre(centre, half, source.size());
    region = source.copy(centre.x() - half, centre.y() - half, side, side);
}

void MagnifierWidget::paintEvent(QPaintEvent *)
{
    QPainter painter;
    if (!painter.begin(this))
        return;
    painter.setRenderHint(QPainter::Antialiasing, true);
    takeRegion();
    QBrush brush(region);
    brush.setTransform(QTransform().translate(0, 0).scale(double(zoom), double(zoom)));
    painter.setBrush(brush);
    const auto ellipse = [&](int left, int top, int right, int bottom) {
        painter.drawEllipse(QRect(QPoint(left, top), QPoint(right, bottom)));
    };
    ellipse(0, 0, viewWidth - 1, viewHeight - 1);
    painter.setPen(solidPen(QColor(160, 160, 160), 1));
    ellipse(-1, -1, viewWidth, viewHeight);
    painter.setPen(solidPen(QColor(255, 255, 255), 2));
    ellipse(0, 0, viewWidth - 1, viewHeight - 1);
    painter.setPen(solidPen(QColor(215, 215, 215), 1));
    ellipse(1, 1, viewWidth - 2, viewHeight - 2);
    painter.setPen(solidPen(Qt::green, 1));
    constexpr int reach = 8;
    const QPoint middle(viewWidth / 2, viewHeight / 2);
    painter.drawLine(middle - QPoint(reach, 0), middle + QPoint(reach, 0));
    painter.drawLine(middle - QPoint(0, reach), middle + QPoint(0, reach));
    painter.end();
}
