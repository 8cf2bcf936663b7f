// SPDX-License-Identifier: MIT
// Draws the frame, scaled, with the marks of its status over it.
#include "assistantwindow/skypicture.h"

#include "assistantwindow/marks.h"
#include "assistantwindow/overview.h"
#include "assistantwindow/starlabel.h"
#include "assistantwindow/touch.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

namespace assistantwindow
{
namespace
{
constexpr int buttonSize = 48; // pixels
constexpr int textFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    return font;
}
} // namespace

SkyPicture::SkyPicture(QWidget *parent)
    : QLabel(parent), dismissButton(new QPushButton(this)), colours(&theme(false))
{
    setObjectName(QStringLiteral("label_picture"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    dismissButton->setObjectName(QStringLiteral("pushButton_dismissHint"));
    dismissButton->setFixedSize(buttonSize, buttonSize);
    dismissButton->hide();
    connect(dismissButton, &QPushButton::clicked, this, [this] {
        if (captionDismissed)
            captionDismissed();
    });
    retranslate();
}

void SkyPicture::show(const Snapshot &snapshot, const std::optional<BoltLegs> &legs)
{
    ways = legs;
    if (const qint64 key = snapshot.picture.cacheKey(); key != brightKey) {
        bright = brightened(snapshot.picture);
        brightKey = key;
    }
    shown = snapshot;
    const auto &error = shown.status.error;
    const bool canZoom = error && shown.status.pole && shown.status.sky &&
                         shown.status.sky->status == recognition::RecognitionStatus::Recognised;
    level = zoomLevel(level, canZoom ? std::optional<double>(error->total.arcseconds)
                                     : std::optional<double>());
    update();
}

void SkyPicture::setCaption(const QString &text, const QString &reason, bool canBeDismissed)
{
    if (dismissButton->isHidden() == canBeDismissed)
        dismissButton->setVisible(canBeDismissed);
    if (caption == text && captionReason == reason)
        return;
    caption = text;
    captionReason = reason;
    placeButton();
    update();
}

void SkyPicture::retranslate()
{
    const QString name =
        QCoreApplication::translate("SkyPicture", "Do not show this again until the next start");
    dismissButton->setAccessibleName(name);
    dismissButton->setToolTip(name);
}

void SkyPicture::resizeEvent(QResizeEvent *)
{
    placeButton();
}

void SkyPicture::placeButton()
{
    dismissButton->move(width() - dismissButton->width() - 2, captionArea().top() + 2);
}

void SkyPicture::setTheme(const Theme &theme)
{
    colours = &theme;
    dismissButton->setIcon(glyphIcon(Glyph::Close, theme));
    update();
}

void SkyPicture::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()) && tapped)
        tapped();
}

View SkyPicture::currentView() const
{
    const QSize frame = shown.picture.size();
    const View whole = wholeView(frame, size());
    const double radius = zoomRadius(level);
    if (radius <= 0.0 || !shown.status.pole || !shown.status.sky)
        return whole;
    const double scale = shown.status.sky->mapping.scaleAt(*shown.status.pole);
    if (!(scale > 0.0))
        return whole;
    const View close =
        closeView({shown.status.pole->x, shown.status.pole->y}, radius / scale, size());
    return close.scale > whole.scale ? close : whole;
}

void SkyPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), colours->well);
    if (!shown.picture.isNull()) {
        const View view = currentView();
        const QRectF target(view.place(-0.5, -0.5), QSizeF(shown.picture.size()) * view.scale);
        const QRectF visible = target & QRectF(rect());
        const QRectF source((visible.topLeft() - target.topLeft()) / view.scale,
                            visible.size() / view.scale);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(visible, bright, source);
        paintMarks(painter, shown.status, ways, view, QRectF(rect()), *colours);
        if (isEnlarged(view))
            paintContext(painter, view);
    } else {
        paintNoPicture(painter, QRectF(rect()), *colours);
    }
    paintCaption(painter);
}

bool SkyPicture::isEnlarged(const View &view) const
{
    return shown.status.pole && shown.status.sky &&
           view.scale > wholeView(shown.picture.size(), size()).scale;
}

void SkyPicture::paintContext(QPainter &painter, const View &view) const
{
    const auto &place = shown.status.axis.place;
    const QPointF axis = place ? view.place(*place) : QPointF(rect().center());
    paintOverview(painter, bright, shown.status,
                  overviewBox(QSizeF(bright.size()), QRectF(rect()), axis), *colours);
    const double pixelScale = shown.status.sky->mapping.scaleAt(*shown.status.pole) / view.scale;
    const double bottom = caption.isEmpty() ? height() : captionArea().top();
    paintScaleBar(painter, scaleBar(pixelScale, width() * 0.3), QPointF(16.0, bottom - 12.0),
                  *colours);
}

QRect SkyPicture::captionArea() const
{
    if (caption.isEmpty())
        return {};
    const bool hasButton = !dismissButton->isHidden();
    const QRect most = rect().adjusted(10, 0, hasButton ? -buttonSize - 8 : -10, 0);
    int high = QFontMetrics(sized(font(), 15)).boundingRect(most, textFlags, caption).height();
    if (!captionReason.isEmpty())
        high +=
            QFontMetrics(sized(font(), 13)).boundingRect(most, textFlags, captionReason).height();
    if (hasButton)
        high = std::max(high, buttonSize - 8);
    return QRect(most.left(), height() - high - 8, most.width(), high);
}

void SkyPicture::paintCaption(QPainter &painter) const
{
    if (caption.isEmpty())
        return;
    const QRect area = captionArea();
    QColor ground = colours->well;
    ground.setAlpha(200);
    painter.fillRect(QRect(0, area.top() - 6, width(), height() - area.top() + 6), ground);
    painter.setFont(sized(font(), 15));
    painter.setPen(colours->warning);
    QRect used;
    painter.drawText(area, textFlags, caption, &used);
    painter.setFont(sized(font(), 13));
    painter.setPen(colours->text);
    painter.drawText(area.adjusted(0, used.height(), 0, 8), textFlags, captionReason);
}
} // namespace assistantwindow
