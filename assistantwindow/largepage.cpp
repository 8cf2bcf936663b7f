// SPDX-License-Identifier: MIT
// Draws the large view so that it can be read from three metres.
#include "assistantwindow/largepage.h"

#include "assistantwindow/indicators.h"
#include "assistantwindow/touch.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cmath>

namespace assistantwindow
{
namespace
{
constexpr double margin = 14.0;

constexpr double nameHeight = 30.0;
constexpr double digitsShare = 0.72; // of a row's height without the name

QString mainPageText(const char *source)
{
    return QCoreApplication::translate("MainPage", source);
}

QColor moodColour(AdviceMood mood, const Theme &theme)
{
    return mood == AdviceMood::Warning ? theme.warning
           : mood == AdviceMood::Good  ? theme.good
                                       : theme.text;
}
} // namespace

LargeContent largeContent(const Display &display)
{
    LargeContent content;
    content.advice = display.advice;
    content.further = display.further;
    content.mood = display.mood;
    const auto &ways = display.ways;
    if (display.stage == assistant::Stage::Axis) {
        LargeRow row;
        row.number = display.axisTurn;
        row.name = display.stageText;
        content.rows.push_back(row);
        content.share = display.axisShare;
    } else if (display.stage == assistant::Stage::Bolts && display.hasBolts) {
        content.rows.push_back({ways.altitude, ways.altitudeSide, display.altitudeArrow,
                                &Theme::altitude, true, display.altitude.text,
                                wayText(ways.altitude), mainPageText("Altitude")});
        content.rows.push_back({ways.azimuth, ways.azimuthSide, display.azimuthArrow,
                                &Theme::azimuth, true, display.azimuth.text, wayText(ways.azimuth),
                                mainPageText("Azimuth")});
    } else if (display.stage == assistant::Stage::Bolts && display.total.arcseconds) {
        const Way way = display.pictureArrow ? Way::Up : Way::Unknown;
        content.rows.push_back({way,
                                way,
                                display.pictureArrow.value_or(0.0),
                                &Theme::lit,
                                true,
                                display.total.text,
                                {},
                                mainPageText("Total error")});
    }
    return content;
}

int fittedPixelSize(const QStringList &texts, QFont font, double width, double height)
{
    font.setPixelSize(200);
    const QFontMetricsF metrics(font);
    double widest = 1.0;
    for (const QString &text : texts)
        widest = std::max(widest, metrics.horizontalAdvance(text));
    const double digits = std::max(1.0, metrics.tightBoundingRect(QStringLiteral("0")).height());
    return std::max(8, int(200.0 * std::min(width / widest, height / digits)));
}

LargePage::LargePage(QWidget *parent)
    : QWidget(parent), backButton(new QPushButton(this)), colours(&theme(false))
{
    setObjectName(QStringLiteral("largePage"));
    backButton->setObjectName(QStringLiteral("pushButton_back"));
    backButton->setFixedSize(56, 56);
    backButton->setIconSize({24, 24});
    retranslate();
}

void LargePage::show(const Display &display)
{
    content = largeContent(display);
    update();
}

void LargePage::setTheme(const Theme &theme)
{
    colours = &theme;
    backButton->setIcon(glyphIcon(Glyph::Back, theme));
    update();
}

void LargePage::retranslate()
{
    backButton->setAccessibleName(tr("Back"));
    backButton->setToolTip(tr("Back") + QStringLiteral(" (Esc)"));
}

void LargePage::resizeEvent(QResizeEvent *)
{
    backButton->move(width() - backButton->width() - 8, 8);
}

void LargePage::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && tapped)
        tapped();
}

void LargePage::paintAdvice(QPainter &painter, const QRectF &area, int most) const
{
    QFont sentence = font();
    sentence.setBold(true);
    const int flags = Qt::AlignCenter | Qt::TextWordWrap;
    for (int size = most; size >= 14; --size) {
        sentence.setPixelSize(size);
        const QRectF needed = QFontMetricsF(sentence).boundingRect(area, flags, content.advice);
        if (needed.height() <= area.height() && needed.width() <= area.width())
            break;
    }
    painter.setFont(sentence);
    painter.setPen(moodColour(content.mood, *colours));
    painter.drawText(area, flags, content.advice);
}

/// The arrow with its word below.
void LargePage::paintArrowOf(QPainter &painter, const LargeRow &row, const QRectF &box) const
{
    const double wordHeight = row.word.isEmpty() ? 0.0 : 34.0;
    const QColor colour = colours->*row.colour;
    paintBolt(painter, box.adjusted(0, 0, 0, -wordHeight), row.way, row.side, row.degrees, colour,
              *colours);
    QFont word = font();
    word.setBold(true);
    word.setPixelSize(std::min(28, fittedPixelSize({row.word}, word, box.width(), 28.0)));
    painter.setFont(word);
    painter.setPen(row.way == Way::Stay ? colours->good : colour);
    painter.drawText(QRectF(box.left(), box.bottom() - wordHeight, box.width(), wordHeight),
                     Qt::AlignCenter, row.word);
}

void LargePage::paintRow(QPainter &painter, const LargeRow &row, const QRectF &area,
                         int pixelSize) const
{
    double left = area.left();
    if (row.hasArrow) {
        const double side = std::min(area.height(), area.width() * 0.25);
        paintArrowOf(painter, row, QRectF(area.left(), area.top(), side, area.height()));
        left += side + margin;
    }
    const Qt::Alignment aside = row.hasArrow ? Qt::AlignRight : Qt::AlignHCenter;
    QFont name = font();
    name.setPixelSize(int(nameHeight * 0.85));
    painter.setFont(name);
    painter.setPen(colours->*row.colour);
    // Chinese letters reach below the line of the others.
    painter.drawText(QRectF(left, area.top(), area.right() - left, nameHeight),
                     int(aside) | Qt::AlignTop | Qt::TextDontClip, row.name);
    QFont digits = font();
    digits.setPixelSize(pixelSize);
    painter.setFont(digits);
    painter.setPen(row.way == Way::Stay ? colours->good : colours->text);
    painter.drawText(
        QRectF(left, area.top() + nameHeight, area.right() - left, area.height() - nameHeight),
        int(aside) | Qt::AlignVCenter, row.number);
}

double adviceRoom(double height, std::size_t rows)
{
    constexpr double minDigits = 0.21; // of the height; a fifth is asked for
    const double row = nameHeight + height * minDigits / digitsShare;
    return std::max(0.0, height - 3.0 * margin - double(rows) * row);
}

std::size_t fitting(const std::vector<double> &heights, double room)
{
    std::size_t number = 0;
    for (double sum = 0.0; number < heights.size(); ++number) {
        sum += heights[number];
        if (sum > room)
            break;
    }
    return number;
}

QRectF LargePage::paintFurther(QPainter &painter, const QRectF &area) const
{
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    QFont sentence = font();
    sentence.setPixelSize(std::max(18, height() / 24));
    const QFontMetricsF metrics(sentence);
    std::vector<double> heights;
    for (const QString &text : content.further)
        heights.push_back(std::ceil(metrics.boundingRect(area, flags, text).height()) + 4.0);
    const std::size_t number = fitting(heights, area.height());
    double used = 0.0;
    for (std::size_t i = 0; i < number; ++i)
        used += heights[i];
    painter.setFont(sentence);
    painter.setPen(colours->text);
    double top = area.bottom() - used;
    for (std::size_t i = 0; i < number; ++i) {
        painter.drawText(QRectF(area.left(), top, area.width(), heights[i]), flags,
                         content.further[int(i)]);
        top += heights[i];
    }
    return area.adjusted(0, 0, 0, -used);
}

void LargePage::paintRows(QPainter &painter, const QRectF &area) const
{
    const double rowHeight = area.height() / double(content.rows.size());
    QStringList numbers{QStringLiteral("00′00″")};
    bool hasArrow = false;
    for (const LargeRow &row : content.rows) {
        numbers.append(row.number);
        hasArrow = hasArrow || row.hasArrow;
    }
    const double arrow = hasArrow ? std::min(rowHeight, area.width() * 0.25) + margin : 0;
    const int size = fittedPixelSize(numbers, font(), area.width() - arrow,
                                     (rowHeight - nameHeight) * digitsShare);
    for (std::size_t i = 0; i < content.rows.size(); ++i)
        paintRow(
            painter, content.rows[i],
            QRectF(area.left(), area.top() + double(i) * rowHeight, area.width(), rowHeight - 8.0),
            size);
}

void LargePage::paintShare(QPainter &painter, const QRectF &bar) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours->control);
    painter.drawRoundedRect(bar, 6, 6);
    painter.setBrush(colours->lit);
    painter.drawRoundedRect(
        QRectF(bar.topLeft(), QSizeF(bar.width() * content.share, bar.height())), 6, 6);
    painter.setPen(QPen(colours->quiet, 2.0));
    const double notch = bar.left() + bar.width() * earliestShare;
    painter.drawLine(QPointF(notch, bar.top()), QPointF(notch, bar.bottom()));
}

void LargePage::paintWithoutRows(QPainter &painter, const QRectF &inside) const
{
    const QRectF lower = inside.adjusted(0, inside.height() * 0.6, 0, 0);
    const QRectF left = paintFurther(painter, lower);
    paintAdvice(painter, QRectF(inside.topLeft(), left.bottomRight()).adjusted(0, 50, 0, -margin),
                height() / 7);
}

void LargePage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), colours->well);
    const QRectF inside = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    if (content.rows.empty())
        return paintWithoutRows(painter, inside);
    const double strip = std::max(54.0, height() * 0.125);
    const double room = std::max(0.0, adviceRoom(height(), content.rows.size()) - strip);
    const QRectF rest = paintFurther(painter, inside.adjusted(0, inside.height() - room, 0, 0));
    const QRectF advice(inside.left(), rest.bottom() - strip, inside.width(), strip);
    // The button's corner stays free.
    paintRows(painter,
              QRectF(inside.topLeft(), QPointF(inside.right() - 60.0, advice.top() - margin)));
    if (content.share >= 0.0)
        paintShare(painter, QRectF(inside.left(), advice.top() - 18.0, inside.width(), 12.0));
    paintAdvice(painter, advice, int(strip * 0.6));
}
} // namespace assistantwindow
