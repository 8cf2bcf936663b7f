// SPDX-License-Identifier: MIT
// Where is the pole in a hemisphere's template mask image?
#include "geometry/templatepole.h"

#include "geometry/polecomputation.h"
#include "geometry/starcatalogue.h"

#include <QDebug>
#include <QImage>
#include <QPainter>

namespace
{
/// Half the length of the cross's lines, pixels.
constexpr double crossHalf = 5.0;

void drawCross(QImage &mask, double x, double y)
{
    // Also keeps NaN values away from the painter.
    const auto within = [](double value, int size) {
        return value >= -crossHalf && value <= size + crossHalf;
    };
    if (mask.isNull() || !within(x, mask.width()) || !within(y, mask.height()))
        return;
    // The painter cannot draw on pictures with a colour table.
    if (mask.format() <= QImage::Format_Indexed8)
        mask = mask.convertToFormat(QImage::Format_ARGB32);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(150, 244, 254), 1.0));
    painter.drawLine(QPointF(x - crossHalf, y), QPointF(x + crossHalf, y));
    painter.drawLine(QPointF(x, y - crossHalf), QPointF(x, y + crossHalf));
}
} // namespace

bool computeTemplatePole(StarCatalogue &catalogue, QImage &mask, const char *hemisphere)
{
    if (PoleFromTriangle(catalogue.starAX, catalogue.starAY, catalogue.angleBAP, catalogue.starBX,
                         catalogue.starBY, catalogue.angleABP, catalogue.starDX, catalogue.starDY,
                         catalogue.angleDBP, catalogue.templatePoleX,
                         catalogue.templatePoleY) != 0) {
        qCritical("Failed to calculate the %s pole.", hemisphere);
        return false;
    }
    qDebug().nospace() << hemisphere << " pole in template " << catalogue.templatePoleX << ' '
                       << catalogue.templatePoleY;
    drawCross(mask, catalogue.templatePoleX, catalogue.templatePoleY);
    return true;
}
