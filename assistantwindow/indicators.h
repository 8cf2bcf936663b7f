// SPDX-License-Identifier: MIT
// The small drawings of the panel: the ring of the axis' turn, a bolt's arrow, the error's history,
// the stages.
#pragma once

#include "assistant/history.h"
#include "assistantwindow/display.h"
#include "assistantwindow/theme.h"

#include <QLabel>
#include <vector>

namespace assistantwindow
{
/// A ring that fills while the axis turns, with the label's text in its middle.
class TurnRing : public QLabel
{
public:
    explicit TurnRing(QWidget *parent = nullptr);
    void show(double share, bool enough);
    void setTheme(const Theme &theme);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double share = 0.0; ///< 0 to 1
    bool enough = false;
    const Theme *colours;
};

/// A bolt's arrow in `box`; a dimmed arrow with a tick for a good bolt, a dash for none.
/// @param side where the axis must go, also of a good bolt
void paintBolt(QPainter &painter, const QRectF &box, Way way, Way side, double degrees,
               const QColor &colour, const Theme &theme);

/// `paintBolt` as large as the widget, in the colour that the bolt has in the picture too.
class BoltArrow : public QWidget
{
public:
    explicit BoltArrow(QColor Theme::*colour, QWidget *parent = nullptr);
    void show(Way way, Way side, double degrees);
    void setTheme(const Theme &theme);
    QSize sizeHint() const override { return {64, 64}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor Theme::*colour;
    Way way = Way::Unknown, side = Way::Unknown;
    double degrees = 0.0;
    const Theme *colours;
};

/// Where an error lies in the plot: 0 at its lower border (1″), 1 at its upper one (10 degrees).
double plotHeight(double arcseconds);

inline constexpr double plotSeconds = 300.0;

/// Points that belong to one line: from the first to before the last number.
struct PlotRun {
    std::size_t first, last;
};
/// Where no point came for longer than `plotGap` seconds, as during clouds, a new run begins.
inline constexpr double plotGap = 5.0;
std::vector<PlotRun> plotRuns(const std::deque<assistant::History::Point> &points);

/// The error over the last minutes, in the logarithm.
class ErrorPlot : public QWidget
{
public:
    explicit ErrorPlot(QWidget *parent = nullptr);
    /// @param now by the points' clock; the last point's time if it is earlier
    void show(const std::deque<assistant::History::Point> &points, double goalArcseconds,
              double now);
    void setTheme(const Theme &theme);
    QSize minimumSizeHint() const override { return {120, 56}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintLines(QPainter &painter, const QRectF &area) const;

    void paintGap(QPainter &painter, const QRectF &gap) const;

    std::deque<assistant::History::Point> history;
    double goal = 20.0, latest = 0.0;
    const Theme *colours;
};

/// Three bars for the three stages: done, current, to come.
class StageBars : public QWidget
{
public:
    explicit StageBars(QWidget *parent = nullptr);
    void show(assistant::Stage stage, bool aligned);
    void setTheme(const Theme &theme);
    QSize sizeHint() const override { return {96, 8}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    assistant::Stage stage = assistant::Stage::Connect;
    bool aligned = false;
    const Theme *colours;
};
} // namespace assistantwindow
