// SPDX-License-Identifier: MIT
// The large view: two numbers and two arrows for the whole screen.
#pragma once

#include "assistantwindow/display.h"
#include "assistantwindow/theme.h"

#include <QCoreApplication>
#include <QWidget>

class QPushButton;

namespace assistantwindow
{
/// What the large view shows.
struct LargeRow {
    Way way = Way::Unknown, side = Way::Unknown;
    double degrees = 0.0;                  ///< of the arrow
    QColor Theme::*colour = &Theme::quiet; ///< of arrow and name
    bool hasArrow = false;
    QString number, word, name;
};
struct LargeContent {
    std::vector<LargeRow> rows; ///< none: the advice fills the screen
    double share = -1.0;        ///< of the axis' turn, 0 to 1; negative: no bar
    QString advice;
    QStringList further; ///< most important first
    AdviceMood mood = AdviceMood::Calm;
};
LargeContent largeContent(const Display &display);

/// How high the advice below `rows` rows may be at most, pixels, so that the digits keep a fifth of
/// the page's height.
double adviceRoom(double height, std::size_t rows);
/// How many texts of such heights fit below each other, the first ones first.
std::size_t fitting(const std::vector<double> &heights, double room);

/// The greatest font size, pixels, at which each text is no wider than `width` and its digits no
/// higher than `height`.
int fittedPixelSize(const QStringList &texts, QFont font, double width, double height);

class LargePage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(LargePage)

public:
    explicit LargePage(QWidget *parent = nullptr);
    void show(const Display &display);
    void setTheme(const Theme &theme);
    void retranslate();

    QPushButton *backButton;
    std::function<void()> tapped;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void paintArrowOf(QPainter &painter, const LargeRow &row, const QRectF &box) const;
    void paintRow(QPainter &painter, const LargeRow &row, const QRectF &area, int pixelSize) const;
    void paintAdvice(QPainter &painter, const QRectF &area, int most) const;
    void paintWithoutRows(QPainter &painter, const QRectF &inside) const;
    void paintRows(QPainter &painter, const QRectF &area) const;
    void paintShare(QPainter &painter, const QRectF &bar) const;
    /// The further advice that fits, at the bottom of `area`; what is left of the area above it.
    QRectF paintFurther(QPainter &painter, const QRectF &area) const;

    LargeContent content;
    const Theme *colours;
};
} // namespace assistantwindow
