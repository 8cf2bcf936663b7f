// SPDX-License-Identifier: MIT
// Draws the frame, scaled, with the marks of its status over it.
#include "assistantwindow/skypicture.h"

#include "assistantwindow/marks.h"
#include "assistantwindow/starlabel.h"

#include <QMouseEvent>
#include <QPainter>

namespace assistantwindow
{
SkyPicture::SkyPicture(QWidget *parent) : QLabel(parent), colours(&theme(false))
{
    setObjectName(QStringLiteral("label_picture"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SkyPicture::show(const Snapshot &snapshot)
{
    if (snapshot.status.frame != brightFrame || bright.isNull() || snapshot.picture.isNull()) {
        bright = brightened(snapshot.picture);
        brightFrame = snapshot.status.frame;
    }
    shown = snapshot;
    const auto &error = shown.status.error;
    const bool canZoom = error && shown.status.pole && shown.status.sky &&
                         shown.status.sky->status == recognition::RecognitionStatus::Recognised;
    level = zoomLevel(level, canZoom ? std::optional<double>(error->total.arcseconds)
                                     : std::optional<double>());
    update();
}

void SkyPicture::setCaption(const QString &text)
{
    if (caption == text)
        return;
    caption = text;
    update();
}

void SkyPicture::setTheme(const Theme &theme)
{
    colours = &theme;
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
        paintMarks(painter, shown.status, view, QRectF(rect()), *colours);
    } else {
        paintNoPicture(painter, QRectF(rect()), *colours);
    }
    paintCaption(painter);
}

void SkyPicture::paintCaption(QPainter &painter) const
{
    if (caption.isEmpty())
        return;
    QFont small = font();
    small.setPixelSize(15);
    painter.setFont(small);
    const QRect most = rect().adjusted(10, 0, -10, -8);
    const int flags = Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap;
    const QRect text = painter.boundingRect(most, flags, caption);
    QColor ground = colours->well;
    ground.setAlpha(200);
    painter.fillRect(QRect(0, text.top() - 6, width(), height() - text.top() + 6), ground);
    painter.setPen(colours->warning);
    painter.drawText(most, flags, caption);
}
} // namespace assistantwindow
