// SPDX-License-Identifier: MIT
// Draws the panel's indicators.
#include "assistantwindow/indicators.h"

#include "assistantwindow/marks.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace assistantwindow
{
namespace
{
constexpr double lowest = 1.0, highest = 36000.0; // arcseconds
constexpr int dimmed = 90;                        // alpha of a good bolt's arrow

QPen roundPen(const QColor &colour, double width)
{
    return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}
} // namespace

TurnRing::TurnRing(QWidget *parent) : QLabel(parent), colours(&theme(false))
{
    setObjectName(QStringLiteral("label_axisTurn"));
    setAlignment(Qt::AlignCenter);
    setMinimumSize(120, 120);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TurnRing::show(double newShare, bool isEnough)
{
    share = newShare;
    enough = isEnough;
    update();
}

void TurnRing::setTheme(const Theme &theme)
{
    colours = &theme;
    update();
}

void TurnRing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min(width(), height()) * 0.9 - 8.0;
    const QRectF circle(width() / 2.0 - side / 2.0, height() / 2.0 - side / 2.0, side, side);
    const double thick = std::max(8.0, side * 0.07);
    painter.setPen(QPen(colours->control, thick));
    painter.drawEllipse(circle);
    const QColor filled = enough ? colours->good : colours->lit;
    painter.setPen(QPen(filled, thick, Qt::SolidLine, Qt::FlatCap));
    // From the top, clockwise; QPainter counts sixteenths of a degree counter-clockwise.
    painter.drawArc(circle, 90 * 16, -int(std::lround(share * 360.0 * 16.0)));
    // A notch where it may be enough already.
    painter.setPen(QPen(colours->quiet, 2.0));
    const double angle = earliestShare * 2.0 * std::acos(-1.0);
    const QPointF way(std::sin(angle), -std::cos(angle));
    painter.drawLine(circle.center() + way * (side / 2.0 - thick),
                     circle.center() + way * (side / 2.0 + thick));
    QFont digits = font();
    digits.setPixelSize(std::max(16, int(side * 0.26)));
    painter.setFont(digits);
    painter.setPen(colours->text);
    painter.drawText(circle, Qt::AlignCenter, text());
}

void paintBolt(QPainter &painter, const QRectF &box, Way way, Way side, double degrees,
               const QColor &colour, const Theme &theme)
{
    const double size = std::min(box.width(), box.height()) * 0.86;
    painter.save();
    painter.translate(box.center());
    const bool isGood = way == Way::Stay, hasSide = side != Way::Unknown && side != Way::Stay;
    if (way == Way::Unknown) {
        painter.setPen(roundPen(theme.disabled, size * 0.07));
        painter.drawLine(QPointF(-size * 0.2, 0), QPointF(size * 0.2, 0));
    }
    if (hasSide) {
        QColor shade = colour;
        if (isGood)
            shade.setAlpha(dimmed);
        painter.save();
        painter.rotate(degrees);
        paintArrow(painter, QPointF(0, -size / 2.0), 0.0, size, shade);
        painter.restore();
    }
    if (isGood) {
        painter.setPen(roundPen(theme.good, size * 0.12));
        painter.drawPolyline(QPolygonF({{-size * 0.3, 0.02 * size},
                                        {-size * 0.08, size * 0.26},
                                        {size * 0.32, -size * 0.24}}));
    }
    painter.restore();
}

BoltArrow::BoltArrow(QColor Theme::*boltColour, QWidget *parent)
    : QWidget(parent), colour(boltColour), colours(&theme(false))
{
    setMinimumSize(40, 40);
}

void BoltArrow::show(Way newWay, Way newSide, double newDegrees)
{
    way = newWay;
    side = newSide;
    degrees = newDegrees;
    update();
}

void BoltArrow::setTheme(const Theme &theme)
{
    colours = &theme;
    update();
}

void BoltArrow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintBolt(painter, QRectF(rect()), way, side, degrees, colours->*colour, *colours);
}

double plotHeight(double arcseconds)
{
    const double held = std::clamp(arcseconds, lowest, highest);
    return std::log(held / lowest) / std::log(highest / lowest);
}

ErrorPlot::ErrorPlot(QWidget *parent) : QWidget(parent), colours(&theme(false))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

std::vector<PlotRun> plotRuns(const std::deque<assistant::History::Point> &points)
{
    std::vector<PlotRun> runs;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i == 0 || points[i].seconds - points[i - 1].seconds > plotGap)
            runs.push_back({i, i});
        runs.back().last = i + 1;
    }
    return runs;
}

void ErrorPlot::show(const std::deque<assistant::History::Point> &points, double goalArcseconds,
                     double now)
{
    history = points;
    goal = goalArcseconds;
    latest = now;
    update();
}

void ErrorPlot::setTheme(const Theme &theme)
{
    colours = &theme;
    update();
}

void ErrorPlot::paintLines(QPainter &painter, const QRectF &area) const
{
    const auto yOf = [&area](double arcseconds) {
        return area.bottom() - plotHeight(arcseconds) * area.height();
    };
    QFont small = font();
    small.setPixelSize(12);
    painter.setFont(small);
    for (const double line : {3600.0, 60.0, 1.0}) {
        painter.setPen(QPen(colours->grid, 1.0));
        painter.drawLine(QPointF(area.left(), yOf(line)), QPointF(area.right(), yOf(line)));
        painter.setPen(colours->quiet);
        const QString text = line >= 3600.0 ? QStringLiteral("1°")
                             : line >= 60.0 ? QStringLiteral("1′")
                                            : QStringLiteral("1″");
        painter.drawText(QRectF(0, yOf(line) - 8.0, area.left() - 5.0, 16.0),
                         Qt::AlignRight | Qt::AlignVCenter, text);
    }
    painter.setPen(QPen(colours->good, 1.0, Qt::DashLine));
    painter.drawLine(QPointF(area.left(), yOf(goal)), QPointF(area.right(), yOf(goal)));
}

void ErrorPlot::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area(34.0, 8.0, width() - 42.0, height() - 17.0);
    paintLines(painter, area);
    if (history.empty())
        return;
    const double newest = std::max(latest, history.back().seconds);
    const auto xOf = [&](double seconds) {
        return area.right() - std::min(1.0, (newest - seconds) / plotSeconds) * area.width();
    };
    double dark = area.left(); // where the gap before a run begins
    for (const PlotRun &run : plotRuns(history)) {
        QPolygonF line;
        for (std::size_t i = run.first; i < run.last; ++i)
            if (newest - history[i].seconds <= plotSeconds)
                line.append({xOf(history[i].seconds),
                             area.bottom() - plotHeight(history[i].total) * area.height()});
        if (line.isEmpty())
            continue;
        if (run.first > 0)
            paintGap(painter, {QPointF(dark, area.top()), QPointF(line[0].x(), area.bottom())});
        dark = line.back().x();
        painter.setPen(roundPen(colours->lit, 2.0));
        painter.drawPolyline(line);
        painter.setBrush(colours->lit);
        painter.drawEllipse(line.back(), 2.0, 2.0);
    }
    if (newest - history.back().seconds > plotGap)
        paintGap(painter, {QPointF(dark, area.top()), area.bottomRight()});
}

/// Hatched: nothing was measured.
void ErrorPlot::paintGap(QPainter &painter, const QRectF &gap) const
{
    painter.fillRect(gap, QBrush(colours->border, Qt::BDiagPattern));
}

StageBars::StageBars(QWidget *parent) : QWidget(parent), colours(&theme(false))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StageBars::show(assistant::Stage newStage, bool isAligned)
{
    stage = newStage;
    aligned = isAligned;
    update();
}

void StageBars::setTheme(const Theme &theme)
{
    colours = &theme;
    update();
}

void StageBars::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double gap = 6.0, wide = (width() - 2.0 * gap) / 3.0;
    for (int i = 0; i < 3; ++i) {
        const int now = int(stage) - int(assistant::Stage::Sky);
        const bool done = i < now || (aligned && i == now);
        painter.setBrush(done ? colours->good : i == now ? colours->lit : colours->border);
        painter.drawRoundedRect(QRectF(i * (wide + gap), height() / 2.0 - 3.0, wide, 6.0), 3, 3);
    }
}
} // namespace assistantwindow
