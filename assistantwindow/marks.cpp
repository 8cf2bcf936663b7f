// SPDX-License-Identifier: MIT
// Draws the marks, from the background to the foreground.
#include "assistantwindow/marks.h"

#include "assistantwindow/starlabel.h"

#include <QCoreApplication>
#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace assistantwindow
{
namespace
{
constexpr double pi = 3.14159265358979323846;
constexpr double minEllipse = 4.0; // widget pixels, so that it is visible
constexpr std::size_t maxNames = 8;
constexpr std::size_t maxRings = 40; // the brightest stars; the others have a dot

struct Canvas {
    QPainter &painter;
    const assistant::Status &status;
    const View &view;
    const QRectF &bounds;
    const Theme &theme;
    double pixelScale = 0.0; ///< arcseconds a widget pixel at the pole
};

bool isRecognised(const assistant::Status &status)
{
    return status.sky && status.sky->status == recognition::RecognitionStatus::Recognised;
}

QColor withAlpha(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

/// Degrees between two declination circles: about four across the picture.
double gridStep(double degreesAcross)
{
    for (const double step : {0.25, 0.5, 1.0, 2.0, 5.0})
        if (degreesAcross / step <= 9.0)
            return step;
    return 10.0;
}

void paintGrid(const Canvas &c)
{
    const double across = std::hypot(c.bounds.width(), c.bounds.height()) * c.pixelScale / 3600.0;
    if (across < 0.5)
        return;
    const double step = gridStep(across);
    const double up = c.status.sky->hemisphere == recognition::Hemisphere::North ? 1.0 : -1.0;
    c.painter.setBrush(Qt::NoBrush);
    c.painter.setPen(QPen(c.theme.grid, 1.0));
    for (int k = 1; k <= 14; ++k) {
        const double distance = k * step * pi / 180.0;
        QPainterPath path;
        bool drawing = false;
        for (int i = 0; i <= 72; ++i) {
            const double a = i * 5.0 * pi / 180.0;
            const auto pixel = c.status.sky->mapping.pixelOf({std::sin(distance) * std::cos(a),
                                                              std::sin(distance) * std::sin(a),
                                                              up * std::cos(distance)});
            if (!pixel || std::abs(pixel->x) > 1e5 || std::abs(pixel->y) > 1e5) {
                drawing = false;
                continue;
            }
            const QPointF at = c.view.place(*pixel);
            if (drawing)
                path.lineTo(at);
            else
                path.moveTo(at);
            drawing = true;
        }
        c.painter.drawPath(path);
    }
}

QFont nameFont(const QPainter &painter)
{
    QFont font = painter.font();
    font.setPixelSize(13);
    font.setBold(false);
    return font;
}

/// Where a name may be: right of its star, left, below, above.
std::vector<QRectF> aroundStar(const QPointF &star, const QSizeF &size)
{
    constexpr double apart = 9.0;
    const double w = size.width(), h = size.height();
    return {{star + QPointF(apart, -h / 2.0), size},
            {star + QPointF(-apart - w, -h / 2.0), size},
            {star + QPointF(-w / 2.0, apart), size},
            {star + QPointF(-w / 2.0, -apart - h), size}};
}

/// Stars with a name of their own come before those with a number, then the brightest.
void paintNames(const Canvas &c, const std::vector<QPointF> &places, std::vector<QRectF> taken)
{
    c.painter.setFont(nameFont(c.painter));
    const QFontMetricsF metrics(c.painter.font());
    std::vector<std::vector<QRectF>> boxes;
    std::vector<QString> names;
    for (const bool isNumber : {false, true})
        for (std::size_t i = 0; i < places.size(); ++i) {
            const QString name =
                starLabel(recognition::starName(c.status.sky->matched[i].catalogue));
            if (name.isEmpty() || name.startsWith(QLatin1String("HD ")) != isNumber)
                continue;
            names.push_back(name);
            boxes.push_back(aroundStar(
                places[i], QSizeF(metrics.horizontalAdvance(name) + 2.0, metrics.height())));
        }
    for (const QPointF &place : places)
        taken.emplace_back(place - QPointF(6, 6), QSizeF(12, 12));
    c.painter.setPen(c.theme.star);
    for (const PlacedLabel &name : placedLabels(boxes, taken, c.bounds, maxNames))
        c.painter.drawText(name.box, Qt::AlignCenter, names[name.label]);
}

void paintStars(const Canvas &c, const std::vector<QRectF> &taken)
{
    std::vector<QPointF> ringed;
    for (const recognition::MatchedStar &match : c.status.sky->matched) {
        if (match.detected >= c.status.stars.size())
            continue;
        const auto &star = c.status.stars[match.detected];
        const QPointF at = c.view.place(star.x, star.y);
        if (ringed.size() < maxRings) {
            c.painter.setBrush(Qt::NoBrush);
            c.painter.setPen(QPen(c.theme.star, 1.3));
            c.painter.drawEllipse(at, 6.0, 6.0);
            ringed.push_back(at);
        } else {
            c.painter.setPen(Qt::NoPen);
            c.painter.setBrush(withAlpha(c.theme.star, 110));
            c.painter.drawEllipse(at, 1.6, 1.6);
        }
    }
    paintNames(c, ringed, taken);
}

std::vector<QRectF> paintRings(const Canvas &c, const QPointF &pole)
{
    struct Ring {
        double arcseconds;
        const char *text;
    };
    constexpr Ring rings[] = {
        {600.0, "10′"}, {300.0, "5′"}, {60.0, "1′"}, {20.0, "20″"}, {5.0, "5″"}};
    std::vector<QRectF> taken;
    c.painter.setBrush(Qt::NoBrush);
    c.painter.setFont(nameFont(c.painter));
    const QFontMetricsF metrics(c.painter.font());
    for (const Ring &ring : rings) {
        const double radius = ring.arcseconds / c.pixelScale;
        if (radius < 11.0 || radius > c.bounds.width())
            continue;
        c.painter.setPen(QPen(withAlpha(c.theme.pole, 130), 1.2));
        c.painter.drawEllipse(pole, radius, radius);
        const QString text = QString::fromUtf8(ring.text);
        const QRectF box(pole + QPointF(-metrics.horizontalAdvance(text) / 2.0 - 2.0,
                                        -radius - metrics.height()),
                         QSizeF(metrics.horizontalAdvance(text) + 4.0, metrics.height()));
        c.painter.setPen(c.theme.pole);
        if (c.bounds.contains(box))
            c.painter.drawText(box, Qt::AlignCenter, text);
        taken.push_back(box);
    }
    return taken;
}

void paintEllipse(const Canvas &c, const QPointF &at, const recognition::Covariance &covariance,
                  const QColor &colour)
{
    const Ellipse ellipse = ellipseOf(covariance, 2.0);
    c.painter.save();
    c.painter.translate(at);
    c.painter.rotate(ellipse.degrees);
    c.painter.setPen(QPen(colour, 2.0));
    c.painter.setBrush(withAlpha(colour, 50));
    c.painter.drawEllipse(QPointF(), std::max(minEllipse, ellipse.longer * c.view.scale),
                          std::max(minEllipse, ellipse.shorter * c.view.scale));
    c.painter.restore();
}

/// A cross for the pole, open in the middle.
void paintCross(const Canvas &c, const QPointF &at, const QColor &colour)
{
    c.painter.setPen(QPen(colour, 2.0));
    for (const QPointF &along : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
        c.painter.drawLine(at + along * 8.0, at + along * 18.0);
}

void paintLine(const Canvas &c, const QPointF &pole, const QPointF &axis)
{
    const QPointF along = axis - pole;
    const double length = std::hypot(along.x(), along.y());
    if (length < 16.0)
        return;
    c.painter.setPen(QPen(c.theme.axis, 2.0, Qt::SolidLine, Qt::RoundCap));
    const QPointF unit = along / length;
    const QPointF tip = axis - unit * 6.0;
    c.painter.drawLine(pole + unit * 6.0, tip - unit * 8.0);
    const double degrees = std::atan2(along.x(), -along.y()) * 180.0 / pi;
    paintArrow(c.painter, tip, degrees, 14.0, c.theme.axis);
}

/// Where the name of a leg may be: beside a leg, on the side away from `inside`; beyond the tip of
/// an axis, which is short.
std::vector<QRectF> besideLeg(const QLineF &leg, bool isAxis, const QPointF &inside,
                              const QSizeF &size)
{
    const QPointF unit = (leg.p2() - leg.p1()) / leg.length();
    QPointF away(-unit.y(), unit.x());
    if (QPointF::dotProduct(away, inside - leg.center()) > 0.0)
        away = -away;
    const auto boxAt = [&size](const QPointF &from, const QPointF &along) {
        const QPointF centre = from + QPointF(along.x() * (size.width() / 2.0 + 6.0),
                                              along.y() * (size.height() / 2.0 + 5.0));
        return QRectF(centre - QPointF(size.width(), size.height()) / 2.0, size);
    };
    const QRectF beyond = boxAt(leg.p2(), unit), beside = boxAt(leg.center(), away);
    const QRectF inner = boxAt(leg.center(), -away);
    if (isAxis)
        return {beyond, beside, inner};
    return {beside, beyond, inner};
}

void paintLeg(const Canvas &c, const QLineF &leg, const QColor &colour)
{
    const QPointF unit = (leg.p2() - leg.p1()) / leg.length();
    c.painter.setPen(QPen(colour, 2.0, Qt::DashLine));
    c.painter.drawLine(leg.p1(), leg.p2() - unit * 10.0);
    paintArrow(c.painter, leg.p2(), std::atan2(unit.x(), -unit.y()) * 180.0 / pi, 12.0, colour);
}

/// Which bolt moves the axis which way: the names and colours are those beside the figures. Returns
/// the boxes of the names.
std::vector<QRectF> paintLegs(const Canvas &c, const BoltLegs &legs)
{
    const QPointF axis = c.view.place(legs.axis), corner = c.view.place(legs.corner),
                  pole = c.view.place(legs.pole);
    const struct {
        QLineF whole;
        QString name;
        QColor colour;
    } bolts[] = {
        {{axis, corner}, QCoreApplication::translate("MainPage", "Altitude"), c.theme.altitude},
        {{corner, pole}, QCoreApplication::translate("MainPage", "Azimuth"), c.theme.azimuth}};
    c.painter.setFont(nameFont(c.painter));
    const QFontMetricsF metrics(c.painter.font());
    std::vector<std::vector<QRectF>> boxes;
    for (const auto &bolt : bolts) {
        const QLineF leg = shownLeg(bolt.whole);
        boxes.emplace_back();
        if (leg.isNull())
            continue;
        paintLeg(c, leg, bolt.colour);
        boxes.back() = besideLeg(leg, leg != bolt.whole, (axis + corner + pole) / 3.0,
                                 {metrics.horizontalAdvance(bolt.name) + 4.0, metrics.height()});
    }
    std::vector<QRectF> taken;
    for (const PlacedLabel &name : placedLabels(boxes, {}, c.bounds, 2)) {
        c.painter.setPen(bolts[name.label].colour);
        c.painter.drawText(name.box, Qt::AlignCenter, bolts[name.label].name);
        taken.push_back(name.box);
    }
    return taken;
}

/// Towards what is outside: the pole, or the direction that the advice tells.
void paintOutside(const Canvas &c)
{
    const QRectF inside = c.bounds.adjusted(14, 14, -14, -14);
    std::optional<EdgeArrow> arrow;
    if (isRecognised(c.status) && c.status.pole)
        arrow = arrowToOutside(c.view.place(*c.status.pole), inside);
    for (const assistant::Advice &advice : c.status.advice)
        if (!arrow && advice.code == assistant::AdviceCode::PoleThatWay)
            arrow = arrowInDirection(advice.second, inside);
    if (arrow)
        paintArrow(c.painter, arrow->tip, arrow->degrees, 56.0, c.theme.pole);
}
} // namespace

void paintArrow(QPainter &painter, const QPointF &tip, double degrees, double length,
                const QColor &colour)
{
    painter.save();
    painter.translate(tip);
    painter.rotate(degrees);
    QPainterPath path;
    const double wing = length * 0.42, neck = std::min(length * 0.5, length);
    path.moveTo(0.0, 0.0);
    path.lineTo(wing, neck);
    path.lineTo(wing * 0.4, neck);
    path.lineTo(wing * 0.4, length);
    path.lineTo(-wing * 0.4, length);
    path.lineTo(-wing * 0.4, neck);
    path.lineTo(-wing, neck);
    path.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(path);
    painter.restore();
}

void paintMarks(QPainter &painter, const assistant::Status &status,
                const std::optional<BoltLegs> &legs, const View &view, const QRectF &bounds,
                const Theme &theme)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(bounds);
    Canvas canvas{painter, status, view, bounds, theme};
    if (isRecognised(status)) {
        const recognition::PixelPlace pole = status.pole ? *status.pole : status.sky->pole;
        canvas.pixelScale = status.sky->mapping.scaleAt(pole) / view.scale;
        const QPointF at = view.place(pole);
        std::vector<QRectF> taken = {QRectF(at - QPointF(20, 20), QSizeF(40, 40))};
        if (canvas.pixelScale > 0.0) {
            paintGrid(canvas);
            const auto labels = paintRings(canvas, at);
            taken.insert(taken.end(), labels.begin(), labels.end());
        }
        if (status.axis.place)
            taken.emplace_back(view.place(*status.axis.place) - QPointF(12, 12), QSizeF(24, 24));
        if (legs) {
            const auto names = paintLegs(canvas, *legs);
            taken.insert(taken.end(), names.begin(), names.end());
        }
        paintStars(canvas, taken);
        if (status.axis.place && !status.axis.isEarly)
            paintLine(canvas, at, view.place(*status.axis.place));
        paintEllipse(canvas, at, status.poleCovariance, theme.pole);
        paintCross(canvas, at, theme.pole);
    }
    if (status.axis.place)
        paintEllipse(canvas, view.place(*status.axis.place), status.axis.covariance, theme.axis);
    paintOutside(canvas);
    painter.restore();
}

void paintNoPicture(QPainter &painter, const QRectF &bounds, const Theme &theme)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const double least = std::min(bounds.width(), bounds.height());
    for (const double share : {0.12, 0.24, 0.36, 0.48}) {
        painter.setPen(QPen(withAlpha(theme.grid, 170), 1.2));
        painter.drawEllipse(bounds.center(), least * share, least * share);
    }
    painter.setPen(QPen(theme.border, 2.0));
    const QPointF centre = bounds.center();
    for (const QPointF &along : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
        painter.drawLine(centre + along * 6.0, centre + along * 16.0);
    painter.restore();
}
} // namespace assistantwindow
