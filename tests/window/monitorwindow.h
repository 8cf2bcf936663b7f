// SPDX-License-Identifier: MIT
// How does a test bring the window to the point where monitor mode is prepared?
#pragma once

#include "tests/window/camerawindow.h"
#include "tests/window/regioncatalogue.h"

#include <QLabel>
#include <QSlider>
#include <QtTest>
#include <cmath>

inline constexpr double pixelTolerance = 0.05;
inline const QPointF axis(640, 480);

inline bool isNear(QPointF a, QPointF b, double tolerance = pixelTolerance)
{
    return std::abs(a.x() - b.x()) <= tolerance && std::abs(a.y() - b.y()) <= tolerance;
}

inline QPointF templateB(const QString &region)
{
    return {catalogueOf(region).starBX, catalogueOf(region).starBY};
}

/// A vector turned clockwise on the screen.
inline QPointF turnedVector(QPointF d, double degrees)
{
    const double angle = degrees * 3.141592653589793 / 180;
    return {d.x() * std::cos(angle) - d.y() * std::sin(angle),
            d.x() * std::sin(angle) + d.y() * std::cos(angle)};
}

/// Star B's offset to star A on the template, rotated. Needs an existing window, which reads the
/// catalogue.
inline QPointF offsetToA(double degrees, const QString &region = "North")
{
    const StarCatalogue &stars = catalogueOf(region);
    return turnedVector(QPointF(stars.starAX, stars.starAY) - templateB(region), degrees);
}

inline QPointF turnedAboutAxis(QPointF point, double degrees)
{
    return axis + turnedVector(point - axis, degrees);
}

/// A connected window in step 11 with the template turned and star B picked at `starB`.
class MonitorWindow : public CameraWindow
{
public:
    MonitorWindow(int degrees, QPointF starB, const std::vector<QPointF> &stars,
                  const QString &region = "North")
        : CameraWindow("[REGION]\nregion=" + region.toUtf8() + '\n')
    {
        showFrame(starFrame(stars));
        connectCamera();
        if (!waitForNewFrame())
            qFatal("no frame is shown");
        enterStep(11);
        session().alignmentPoints.savedAxisCenter = axis;
        child<QSlider>("horizontalSlider_rough_match").setValue(degrees);
        QTest::mouseDClick(&child<QLabel>("label_showImg"), Qt::LeftButton, Qt::NoModifier,
                           starB.toPoint());
    }

    void show(const std::vector<QPointF> &stars) const
    {
        showFrame(starFrame(stars));
        if (!waitForNewFrame())
            qFatal("no frame is shown");
    }
};
