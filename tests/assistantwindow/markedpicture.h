// SPDX-License-Identifier: MIT
// What does the assistant's picture show of one mark alone, and where must that be?
//
// The picture is black and one mark white, so that each lit pixel is that mark's. Where a mark must
// be comes from the virtual camera's own optics and from the widget's size, not from the window.
#pragma once

#include "assistantwindow/overview.h"
#include "assistantwindow/skypicture.h"
#include "astrometry/vector3.h"
#include "tests/assistantwindow/drawing.h"
#include "tests/assistantwindow/madestatus.h"
#include "tests/support/paintedtexts.h"

#include <QtTest>
#include <map>

namespace markedpicture
{
inline constexpr QSize widgetSize(640, 480);
using astrometry::degree;

/// An enlargement: the error that leads to it, and the arcseconds from the pole to the nearer
/// border; 0: the whole frame.
struct Enlargement {
    const char *name;
    double error, radius;
    double gridStep; ///< degrees; 0: no grid
};
inline constexpr Enlargement enlargements[] = {
    {"whole", 5000.0, 0.0, 2.0}, {"30'", 1500.0, 3000.0, 0.5}, {"10'", 500.0, 1000.0, 0.25},
    {"3'", 150.0, 300.0, 0.0},   {"1'", 50.0, 100.0, 0.0},     {"15\"", 12.0, 35.0, 0.0},
};

struct Sky {
    bool south, mirrored;
    assistant::Status status;
    virtualsky::Point pole; ///< the camera's own truth, frame pixels, before mirroring
};

inline Sky makeSky(bool south, bool mirrored)
{
    Sky sky{south, mirrored, {}, {}};
    virtualsky::SkyState state = skyframes::skyOf(south, skyframes::november2026);
    state.roll = 35.0;
    cv::Mat frame = skyframes::frameOf(state, skyframes::november2026, 1);
    sky.pole = *virtualsky::truth(state, skyframes::november2026).pole;
    if (mirrored)
        cv::flip(frame, frame, 1);
    sky.status.stars = recognition::extractStars(frame).stars;
    sky.status.sky = std::make_shared<recognition::Recognition>(
        skyframes::recognised(frame, skyframes::november2026));
    sky.status.pole = sky.status.sky->pole;
    sky.status.poleCovariance = sky.status.sky->poleCovariance;
    sky.status.stage = assistant::Stage::Bolts;
    return sky;
}

inline const Sky &skyOf(bool south, bool mirrored)
{
    static std::map<std::pair<bool, bool>, Sky> made;
    auto found = made.find({south, mirrored});
    if (found == made.end())
        found = made.emplace(std::make_pair(south, mirrored), makeSky(south, mirrored)).first;
    return found->second;
}

/// The window's widget with a black picture and one white mark.
class Picture
{
public:
    Picture(const Sky &theSky, const Enlargement &enlargement) : sky(theSky), status(theSky.status)
    {
        const double half = widgetSize.height() / 2.0;
        const bool isWhole = enlargement.radius <= 0.0;
        scale = isWhole ? double(widgetSize.width()) / virtualsky::sensorWidth
                        : half / enlargement.radius * arcsecondsPerPixel();
        const QPointF pole(status.pole->x, status.pole->y);
        origin = isWhole
                     ? QPointF(0.5, 0.5) * scale
                     : QPointF(widgetSize.width() / 2.0, widgetSize.height() / 2.0) - pole * scale;
        isEnlarged = !isWhole;
        setError(enlargement.error, 0.6);
    }

    /// Frame to widget pixels.
    QPointF place(double x, double y) const { return origin + QPointF(x, y) * scale; }
    /// Of the truth, which knows no mirror.
    QPointF placeOf(const virtualsky::Point &truth) const
    {
        return place(sky.mirrored ? virtualsky::sensorWidth - 1.0 - truth.x : truth.x, truth.y);
    }
    QPointF pole() const { return place(status.pole->x, status.pole->y); }
    /// Widget pixels an arcsecond, at the pole.
    double pixelsPerArcsecond() const { return scale / arcsecondsPerPixel(); }

    /// The axis `arcseconds` from the pole, in a direction of the picture.
    void setError(double arcseconds, double angle)
    {
        status.error = madestatus::figuresOf({arcseconds, 0.0}, false);
        const double away = arcseconds / arcsecondsPerPixel();
        status.axis.place = recognition::PixelPlace{status.pole->x + away * std::cos(angle),
                                                    status.pole->y + away * std::sin(angle)};
    }

    void setEarlyAxis(double arcseconds, double angle)
    {
        setError(arcseconds, angle);
        status.error.reset();
        status.axis.isEarly = true;
    }

    QImage with(QColor assistantwindow::Theme::*mark)
    {
        const assistantwindow::Theme colours = drawing::only(mark);
        assistantwindow::Snapshot snapshot;
        snapshot.status = status;
        snapshot.picture =
            QImage(virtualsky::sensorWidth, virtualsky::sensorHeight, QImage::Format_Grayscale8);
        snapshot.picture.fill(0);
        assistantwindow::SkyPicture widget;
        widget.resize(widgetSize);
        widget.setTheme(colours);
        widget.show(snapshot);
        texts = paintedTexts(widget);
        return widget.grab().toImage();
    }
    /// The whole frame in a corner, and the scale bar: not under test here.
    void hideContext(drawing::Expected &expected) const
    {
        if (!isEnlarged)
            return;
        const QPointF axis = place(status.axis.place->x, status.axis.place->y);
        const QRectF bounds(0.0, 0.0, widgetSize.width(), widgetSize.height());
        expected.hide(assistantwindow::overviewBox(
                          {virtualsky::sensorWidth, virtualsky::sensorHeight}, bounds, axis)
                          .adjusted(-1, -1, 1, 1));
        expected.hide(QRectF(0, widgetSize.height() - 45, widgetSize.width() * 0.35, 45));
    }
    void allowTexts(drawing::Expected &expected) const
    {
        for (const PaintedText &text : texts)
            expected.allow(text.box);
    }

    const Sky &sky;
    assistant::Status status;
    std::vector<PaintedText> texts; ///< of the last picture
    double scale = 1.0;             ///< widget pixels a frame pixel

private:
    /// Of the camera, at the pole: the gnomonic projection stretches with the distance from its
    /// centre.
    double arcsecondsPerPixel() const
    {
        const double off =
            std::hypot(sky.pole.x - virtualsky::centreX, sky.pole.y - virtualsky::centreY) *
            virtualsky::pixelScale / 3600.0 * degree;
        return virtualsky::pixelScale * std::pow(std::cos(std::atan(off)), 1.5);
    }

    QPointF origin;
    bool isEnlarged;
};

/// Rows of every enlargement, on both hemispheres, mirrored or not.
inline void everyPicture()
{
    QTest::addColumn<bool>("south");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("enlargement");
    for (const bool south : {false, true})
        for (const bool mirrored : {false, true})
            for (int i = 0; i < int(std::size(enlargements)); ++i)
                QTest::addRow("%s, %s%s", enlargements[i].name, south ? "south" : "north",
                              mirrored ? ", mirrored" : "")
                    << south << mirrored << i;
}
} // namespace markedpicture
