// SPDX-License-Identifier: MIT
// Draws the large view so that it can be read from three metres.
#include "assistantwindow/largepage.h"

#include "assistantwindow/marks.h"
#include "assistantwindow/touch.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

namespace assistantwindow
{
namespace
{
constexpr double margin = 14.0;

LargeRow boltOf(Way way, double degrees, const Figure &figure)
{
    return {way, degrees, true, figure.text, wayText(way)};
}

QColor moodColour(AdviceMood mood, const Theme &theme)
{
    return mood == AdviceMood::Warning ? theme.warning
           : mood == AdviceMood::Good  ? theme.good
                                       : theme.text;
}

void paintTick(QPainter &painter, const QRectF &box, const QColor &colour)
{
    const double side = std::min(box.width(), box.height());
    painter.setPen(QPen(colour, side * 0.12, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF c = box.center();
    painter.drawPolyline(
        QPolygonF({c + QPointF(-side * 0.32, side * 0.02), c + QPointF(-side * 0.08, side * 0.28),
                   c + QPointF(side * 0.34, -side * 0.26)}));
}
} // namespace

LargeContent largeContent(const Display &display)
{
    LargeContent content;
    content.advice = display.advice;
    content.mood = display.mood;
    if (display.stage == assistant::Stage::Axis) {
        content.rows.push_back({Way::Unknown, 0.0, false, display.axisTurn, {}});
        content.share = display.axisShare;
    } else if (display.stage == assistant::Stage::Bolts && display.hasBolts) {
        content.rows.push_back(
            boltOf(display.ways.altitude, display.altitudeArrow, display.altitude));
        content.rows.push_back(boltOf(display.ways.azimuth, display.azimuthArrow, display.azimuth));
    } else if (display.stage == assistant::Stage::Bolts && display.total.arcseconds) {
        content.rows.push_back({display.pictureArrow ? Way::Up : Way::Unknown,
                                display.pictureArrow.value_or(0.0),
                                true,
                                display.total.text,
                                {}});
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

void LargePage::paintRow(QPainter &painter, const LargeRow &row, const QRectF &area,
                         int pixelSize) const
{
    double left = area.left();
    if (row.hasArrow) {
        const double side = std::min(area.height(), area.width() * 0.25);
        const bool hasWord = !row.word.isEmpty();
        const QRectF box(area.left(), area.top(), side, area.height() - (hasWord ? 34.0 : 0.0));
        const double length = std::min(box.width(), box.height()) * 0.92;
        const QColor colour = row.way == Way::Stay ? colours->good : colours->lit;
        if (row.way == Way::Stay) {
            paintTick(painter, box, colour);
        } else if (row.way != Way::Unknown) {
            painter.save();
            painter.translate(box.center());
            painter.rotate(row.degrees);
            paintArrow(painter, QPointF(0, -length / 2.0), 0.0, length, colour);
            painter.restore();
        }
        if (hasWord) {
            QFont word = font();
            word.setBold(true);
            word.setPixelSize(std::min(28, fittedPixelSize({row.word}, word, side, 28.0)));
            painter.setFont(word);
            painter.setPen(colour);
            painter.drawText(QRectF(area.left(), box.bottom(), side, 34.0), Qt::AlignCenter,
                             row.word);
        }
        left += side + margin;
    }
    QFont digits = font();
    digits.setPixelSize(pixelSize);
    painter.setFont(digits);
    painter.setPen(row.way == Way::Stay ? colours->good : colours->text);
    const QRectF box(left, area.top(), area.right() - left, area.height());
    painter.drawText(box, (row.hasArrow ? Qt::AlignRight : Qt::AlignHCenter) | Qt::AlignVCenter,
                     row.number);
}

void LargePage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), colours->well);
    const QRectF inside = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    if (content.rows.empty()) {
        paintAdvice(painter, inside.adjusted(0, 50, 0, 0), height() / 7);
        return;
    }
    const double strip = std::max(54.0, height() * 0.125);
    const QRectF advice(inside.left(), inside.bottom() - strip, inside.width(), strip);
    const double rowHeight = (inside.height() - strip - margin) / double(content.rows.size());
    QStringList numbers{QStringLiteral("00′00″")};
    bool hasArrow = false;
    for (const LargeRow &row : content.rows) {
        numbers.append(row.number);
        hasArrow = hasArrow || row.hasArrow;
    }
    // The button's corner stays free.
    const double right = inside.right() - 60.0;
    const double arrow =
        hasArrow ? std::min(rowHeight, (right - inside.left()) * 0.25) + margin : 0;
    const int size =
        fittedPixelSize(numbers, font(), right - inside.left() - arrow, rowHeight * 0.72);
    for (std::size_t i = 0; i < content.rows.size(); ++i)
        paintRow(painter, content.rows[i],
                 QRectF(inside.left(), inside.top() + double(i) * rowHeight, right - inside.left(),
                        rowHeight - 8.0),
                 size);
    if (content.share >= 0.0) {
        const QRectF bar(inside.left(), advice.top() - 18.0, inside.width(), 12.0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours->control);
        painter.drawRoundedRect(bar, 6, 6);
        painter.setBrush(colours->lit);
        painter.drawRoundedRect(
            QRectF(bar.topLeft(), QSizeF(bar.width() * content.share, bar.height())), 6, 6);
    }
    paintAdvice(painter, advice, int(strip * 0.6));
}
} // namespace assistantwindow
