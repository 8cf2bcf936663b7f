// SPDX-License-Identifier: MIT
// How does a test use the mouse over the picture and the pages?
#pragma once

#include "geometry/stardetection.h"
#include "tests/window/camerawindow.h"

#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>
#include <QtTest>

// Three places on a circle about 640, 480, three on a line, and one where nothing is.
inline const QPointF onCircle[] = {{640.3, 330.2}, {769.9, 555.1}, {510.1, 555.4}};
inline const QPointF onLine[] = {{400, 350}, {500, 400}, {600, 450}};
inline const QPointF empty(860, 420);
inline const Box noStarBox =
    okBox(QMessageBox::Warning, "Warn", "Seems no star in this point, please try other point.");
inline const Box noCentreBox =
    okBox(QMessageBox::Warning, "Warn",
          "Can not get the Axis center, please click 'reset' to re-find it.");

inline QByteArray zoomSetting(double zoom)
{
    return "[ZOOM]\nfactor=" + QByteArray::number(zoom) + '\n';
}

/// A connected window that shows the stars, operated through the window system's events.
class PickingWindow : public CameraWindow
{
public:
    explicit PickingWindow(double zoomFactor = 1.0, const QPoint &scroll = QPoint())
        : CameraWindow(zoomSetting(zoomFactor)),
          zoom(zoomFactor),
          image(child<QLabel>("label_showImg")),
          position(child<QLabel>("positionLabel"))
    {
        std::vector<QPointF> stars(std::begin(onCircle), std::end(onCircle));
        stars.insert(stars.end(), std::begin(onLine), std::end(onLine));
        frame = starFrame(stars);
        showFrame(frame);
        connectCamera();
        if (!waitForNewFrame())
            qFatal("no frame is shown");
        sdk().setFrameInterval(50);
        const auto &area = child<QScrollArea>("scrollArea_showImg");
        if (!scroll.isNull()) {
            // Smaller than the picture, so that it scrolls.
            window->resize(900, zoomFactor > 0.5 ? 700 : 500);
            QTest::qWait(50);
            area.horizontalScrollBar()->setValue(scroll.x());
            area.verticalScrollBar()->setValue(scroll.y());
            if (area.horizontalScrollBar()->value() != scroll.x() ||
                area.verticalScrollBar()->value() != scroll.y())
                qFatal("the picture does not scroll");
        }
        QTest::qWait(30);
    }

    /// Shows stars other than the initial ones.
    void show(const cv::Mat &other)
    {
        frame = other;
        showFrame(frame);
        if (!waitForNewFrame())
            qFatal("no frame is shown");
        QTest::qWait(30);
    }

    QPoint view(QPointF framePosition) const { return (framePosition * zoom).toPoint(); }

    QPoint inWindow(QPoint view) const { return image.mapTo(window.get(), view); }

    void doubleClick(QPoint view) const
    {
        const QPoint place = inWindow(view);
        if (window->childAt(place) != &image)
            qFatal("the picture is covered at %d, %d", view.x(), view.y());
        QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        // Prevents the next double click from being part of this one.
        QTest::qWait(5);
    }

    /// Presses the button at one place of the picture and moves to another.
    void drag(QPoint from, QPoint to) const
    {
        QWindow *const handle = window->windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, inWindow(from));
        QTest::mouseMove(handle, inWindow(to));
        QTest::qWait(5);
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, inWindow(to));
    }

    /// The star that a search from a view pixel finds.
    QPointF starAt(QPoint viewPixel) const
    {
        double x = 0, y = 0;
        const float factor = float(zoom);
        if (GetPreciseStarPos(&frame, double(float(viewPixel.x()) / factor),
                              double(float(viewPixel.y()) / factor), x, y) != 0)
            qFatal("there is no star");
        return {x, y};
    }

    /// Picks the stars of steps 3, 5 and 7.
    void pickThree(const QPointF (&stars)[3]) const
    {
        const int steps[] = {3, 5, 7};
        for (int i = 0; i < 3; ++i) {
            enterStep(steps[i]);
            doubleClick(view(stars[i]));
        }
    }

    double zoom;
    QLabel &image;
    QLabel &position;
    cv::Mat frame;
};

inline void sendMouse(QWidget &widget, QEvent::Type type, QPointF place)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}
