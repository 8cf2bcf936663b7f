// SPDX-License-Identifier: MIT
// About which point of the frame does the field rotate, and where does a rotation move a point?
#include "geometry/axiscentre.h"

#include "core/saturate.h"
#include "geometry/angles.h"

#include <QDebug>
#include <QString>
#include <cmath>

namespace
{
int failStraight()
{
    qCritical("Point in a straight line,Can not calculate center of cricle.");
    return -1;
}
} // namespace

int CenterOfCircle(double x1, double y1, double x2, double y2, double x3, double y3,
                   double &centreX, double &centreY, int &radius)
{
    if (y1 == y2 && y2 == y3)
        return failStraight();
    if (y1 == y2 || y2 == y3)
        return -1;
    if ((x1 - x2) / (y1 - y2) == (x2 - x3) / (y2 - y3))
        return failStraight();

    // The perpendicular bisectors of the first and second and of the second and third point.
    const double a = 2.0 * (y1 - y2);
    const double b = 2.0 * (x1 - x2);
    const double c = 2.0 * (x2 - x3);
    const double d = 2.0 * (y2 - y3);
    if (a * c == b * d)
        return -1;
    const double det = a * c - b * d;
    const double s1 = x1 * x1 + y1 * y1 - x2 * x2 - y2 * y2;
    const double s2 = x2 * x2 + y2 * y2 - x3 * x3 - y3 * y3;
    centreX = (a * s2 - s1 * d) / det;
    centreY = (s1 * c - b * s2) / det;
    const double dx = centreX - x1;
    const double dy = centreY - y1;
    radius = saturatingInt(std::sqrt(dx * dx + dy * dy));
    qDebug() << "center of cricle" << QString::number(centreX) << QString::number(centreY);
    return 0;
}

void RotatePointByDegrees(double degrees, double x, double y, double cx, double cy,
                          double &rotatedX, double &rotatedY)
{
    const double theta = toRadians(degrees);
    const double dx = x - cx;
    const double dy = y - cy;
    rotatedX = cx + dx * std::cos(theta) - dy * std::sin(theta);
    rotatedY = cy + dx * std::sin(theta) + dy * std::cos(theta);
}

void RotatePointByRadians(double radians, double x, double y, double cx, double cy,
                          double &rotatedX, double &rotatedY)
{
    const double dx = x - cx;
    const double dy = y - cy;
    rotatedX = cx + dx * std::cos(radians) + dy * std::sin(radians);
    rotatedY = cy + dy * std::cos(radians) - dx * std::sin(radians);
}
