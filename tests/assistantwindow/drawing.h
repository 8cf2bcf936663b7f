// SPDX-License-Identifier: MIT
// Is what a picture shows where it should be, and nowhere else?
#pragma once

#include "assistantwindow/theme.h"

#include <QImage>
#include <QPointF>
#include <algorithm>
#include <cmath>
#include <vector>

namespace drawing
{
using Points = std::vector<QPointF>;
constexpr double pi = 3.14159265358979323846;

/// Nothing but one colour, on black.
inline assistantwindow::Theme only(QColor assistantwindow::Theme::*mark)
{
    const QColor none(Qt::transparent);
    assistantwindow::Theme theme{none, none, none, none, none, none, none, none, none, none,
                                 none, none, none, none, none, none, none, none, none};
    theme.well = Qt::black;
    theme.*mark = Qt::white;
    return theme;
}

/// Brightness, 0 to 255, of the brightest of the nine pixels about a place; pixel (0, 0) is at
/// (0.5, 0.5).
inline int light(const QImage &image, const QPointF &at)
{
    int most = 0;
    const int x = int(std::floor(at.x())), y = int(std::floor(at.y()));
    for (int row = y - 1; row <= y + 1; ++row)
        for (int column = x - 1; column <= x + 1; ++column)
            if (image.rect().contains(column, row))
                most = std::max(most, qGray(image.pixel(column, row)));
    return most;
}

/// What is expected, as curves and areas.
class Expected
{
public:
    explicit Expected(const QImage &theImage) : image(theImage), allowed(theImage.size(), kind)
    {
        allowed.fill(Qt::black);
    }

    /// The share of the points inside the picture at which it is lit; all of them without any.
    double curve(const Points &points, double width = 2.0, int least = 90)
    {
        int inside = 0, lit = 0;
        for (const QPointF &point : points) {
            allow(QRectF(point - QPointF(width, width), point + QPointF(width, width)));
            if (!QRectF(image.rect()).adjusted(2, 2, -2, -2).contains(point) || isHidden(point))
                continue;
            ++inside;
            lit += light(image, point) >= least ? 1 : 0;
        }
        seen += inside;
        return inside == 0 ? 1.0 : double(lit) / inside;
    }
    void allow(const QRectF &area)
    {
        const QRect pixels = area.toAlignedRect() & image.rect();
        for (int y = pixels.top(); y <= pixels.bottom(); ++y)
            for (int x = pixels.left(); x <= pixels.right(); ++x)
                allowed.setPixel(x, y, qRgb(255, 255, 255));
    }
    /// Something else is drawn there, over all.
    void hide(const QRectF &area)
    {
        allow(area);
        hidden.push_back(area);
    }
    /// Lit pixels outside all of it.
    int strays() const
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += qGray(image.pixel(x, y)) > 40 && qGray(allowed.pixel(x, y)) == 0 ? 1 : 0;
        return count;
    }
    /// How many points of curves were inside the picture so far.
    int points() const { return seen; }

private:
    static constexpr QImage::Format kind = QImage::Format_RGB32;
    bool isHidden(const QPointF &point) const
    {
        return std::any_of(hidden.begin(), hidden.end(),
                           [&point](const QRectF &area) { return area.contains(point); });
    }

    const QImage &image;
    QImage allowed;
    std::vector<QRectF> hidden;
    int seen = 0;
};

/// Half axes in pixels; the longer one's direction, degrees, 0 right, positive clockwise.
inline Points ellipse(const QPointF &centre, double longer, double shorter, double degrees = 0.0)
{
    const int steps = std::max(36, int(longer * 6.0));
    const double turn = degrees * pi / 180.0;
    Points points;
    for (int i = 0; i < steps; ++i) {
        const double a = 2.0 * pi * i / steps;
        const double u = longer * std::cos(a), v = shorter * std::sin(a);
        points.push_back(centre + QPointF(u * std::cos(turn) - v * std::sin(turn),
                                          u * std::sin(turn) + v * std::cos(turn)));
    }
    return points;
}

inline Points circle(const QPointF &centre, double radius)
{
    return ellipse(centre, radius, radius);
}

inline Points segment(const QPointF &from, const QPointF &to)
{
    const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
    const int steps = std::max(1, int(length));
    Points points;
    for (int i = 0; i <= steps; ++i)
        points.push_back(from + (to - from) * (double(i) / steps));
    return points;
}
} // namespace drawing
