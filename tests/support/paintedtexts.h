// SPDX-License-Identifier: MIT
// Which texts does a widget paint, and is each of them seen in full?
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QStringList>
#include <QTextItem>
#include <QWidget>
#include <cmath>
#include <vector>

/// One line of text.
struct PaintedText {
    QString text;
    QRectF box;  ///< of its letters' advance and height, pixels of the device
    QRectF clip; ///< what the painter lets through
    QRectF ink;  ///< of the letters themselves
    QColor colour;
};

/// A device that draws nothing and keeps the texts.
class TextKeeper : public QPaintDevice
{
public:
    explicit TextKeeper(QSize of) : size(of), engine(*this) {}

    QPaintEngine *paintEngine() const override { return &engine; }
    std::vector<PaintedText> texts;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        constexpr int dotsPerInch = 96;
        switch (metric) {
        case PdmWidth:
            return size.width();
        case PdmHeight:
            return size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(TextKeeper &of) : QPaintEngine(AllFeatures), keeper(of) {}

        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState &) override {}
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
        void drawImage(const QRectF &, const QImage &, const QRectF &,
                       Qt::ImageConversionFlags) override
        {
        }
        void drawPath(const QPainterPath &) override {}
        void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
        void drawTextItem(const QPointF &at, const QTextItem &item) override
        {
            const QTransform place = painter()->deviceTransform();
            const QRectF box(at.x(), at.y() - item.ascent(), item.width(),
                             item.ascent() + item.descent());
            const QRectF ink =
                QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(at);
            QRectF clip(QPointF(), QSizeF(keeper.size));
            if (painter()->hasClipping())
                clip &= place.mapRect(painter()->clipBoundingRect());
            if (!item.text().trimmed().isEmpty())
                keeper.add({item.text(), place.mapRect(box), clip, place.mapRect(ink),
                            painter()->pen().color()});
        }
        Type type() const override { return User; }

    private:
        TextKeeper &keeper;
    };

    /// A letter of another font makes a run of its own.
    void add(const PaintedText &text)
    {
        if (!texts.empty()) {
            PaintedText &last = texts.back();
            const bool isSameLine = text.box.top() < last.box.bottom() &&
                                    last.box.top() < text.box.bottom() &&
                                    std::abs(text.box.left() - last.box.right()) < 0.6;
            if (isSameLine && last.colour == text.colour) {
                last.text += text.text;
                last.box |= text.box;
                last.ink |= text.ink;
                return;
            }
        }
        texts.push_back(text);
    }

    QSize size;
    mutable Engine engine;
};

/// The texts of a widget and its children, in the widget's pixels.
inline std::vector<PaintedText> paintedTexts(QWidget &widget)
{
    TextKeeper keeper(widget.size());
    widget.render(&keeper, {}, {}, QWidget::DrawChildren);
    return keeper.texts;
}

/// Letters alone: where lines break is not said.
inline QString lettersOf(QString text)
{
    return text.remove(QChar(' ')).remove(QChar('\n')).remove(QChar::LineSeparator);
}

inline QString lettersOf(const std::vector<PaintedText> &texts)
{
    QString all;
    for (const PaintedText &each : texts)
        all += lettersOf(each.text);
    return all;
}

/// One line for each text of which some letters are outside what is shown, or that covers another.
inline QStringList cutTexts(const std::vector<PaintedText> &texts)
{
    constexpr double tolerance = 1.0; // pixels: smoothed borders
    QStringList found;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const PaintedText &text = texts[i];
        const QRectF grown = text.clip.adjusted(-tolerance, -tolerance, tolerance, tolerance);
        if (!grown.contains(text.ink))
            found.append(QStringLiteral("cut: %1").arg(text.text));
        for (std::size_t k = 0; k < i; ++k) {
            const QRectF common = text.ink & texts[k].ink;
            if (common.width() > tolerance && common.height() > tolerance)
                found.append(QStringLiteral("%1 covers %2").arg(text.text, texts[k].text));
        }
    }
    return found;
}
