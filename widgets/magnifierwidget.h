// SPDX-License-Identifier: MIT
// What does a picture look like magnified around one of its points?
#pragma once

#include <QPixmap>
#include <QPoint>
#include <QWidget>

/// A circular view, with a green cross at its centre, of a small square of a picture.
class MagnifierWidget : public QWidget
{
    Q_OBJECT

public:
    /// A view of 120 x 120 pixels.
    explicit MagnifierWidget(QWidget *parent = nullptr);
    /// @param width, height size of the view in pixels; the widget is 2 pixels larger
    MagnifierWidget(int width, int height, QWidget *parent = nullptr);

    /// View pixels per picture pixel; does not repaint.
    void setZoom(float factor) { zoom = factor; }
    /// The picture to magnify from; does not repaint.
    void setSource(const QPixmap &picture) { source = picture; }
    /// The point to magnify, in picture pixels; does not repaint. Painting moves it inward so that
    /// the square is inside the picture.
    void setCentre(QPoint point) { centre = point; }
    QPoint magnifiedCentre() const { return centre; }
    /// The square of the picture that was painted last.
    const QPixmap &magnifiedRegion() const { return region; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void takeRegion();

    QPixmap source;
    QPixmap region;
    float zoom = 3.0F;
    QPoint centre{20, 20};
    int viewWidth;
    int viewHeight;
};

/// `centre` moved so that a square of side 2 * `half` is inside a picture of `size`. The right and
/// lower bounds are applied last, so they win if the picture is smaller.
QPoint clampedCentre(QPoint centre, int half, QSize size);
