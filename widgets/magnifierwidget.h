// SPDX-License-Identifier: MIT
// What does the picture look like, enlarged, around one of its points?
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

    /// How many view pixels one picture pixel takes; does not repaint.
    void setZoom(float factor) { zoom = factor; }
    /// The picture to magnify from; does not repaint.
    void setSource(const QPixmap &picture) { source = picture; }
    /// The point to magnify, in picture pixels; does not repaint. Painting moves it so far inside
    /// that the square lies in the picture.
    void setCentre(QPoint point) { centre = point; }
    QPoint magnifiedCentre() const { return centre; }
    /// The square of the picture that was last painted.
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

/// `centre` moved inside a picture of `size` so that a square of twice `half` lies within; the
/// right and lower bounds are applied last, so they win where the picture is smaller.
QPoint clampedCentre(QPoint centre, int half, QSize size);
