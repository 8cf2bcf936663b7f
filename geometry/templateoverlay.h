// SPDX-License-Identifier: MIT
// Where does the template lie on the screen, and which frame positions follow from its angle?
#pragma once

#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QRect>

struct StarCatalogue;

// Frame pixels and template (mask) pixels have one scale: template offsets are added to frame
// positions as they are. View pixels are frame pixels times the zoom factor. x runs to the right,
// y downwards. Angles are whole degrees, positive clockwise on the screen.

/// A picture and its place in view pixels; both null where there is nothing to show. The place's
/// top-left corner stays within 2^24 pixels of the origin.
struct PlacedTemplate {
    QImage image;
    QRect geometry;
};

/// The mask scaled by the zoom factor and turned, with the turned picture's middle pixel on the
/// click (view pixels). The picture is null for zoom factors that give no picture: zero, negative,
/// not a number, or larger than 4096 pixels on a side.
PlacedTemplate turnTemplate(const QImage &mask, int angle, float zoomFactor, QPoint clickViewPos);

/// The mask scaled by the zoom factor, not turned, centred on templateCenter (frame pixels).
/// Null as for turnTemplate.
PlacedTemplate flatTemplate(const QImage &mask, float zoomFactor, QPointF templateCenter);

/// The view pixel of a frame position, truncated toward zero (saturated at int's range).
QPoint viewPosition(float zoomFactor, QPointF framePosition);

/// The pole in the frame, from the template's angle and the pole star's frame position.
QPointF expectedPole(const StarCatalogue &catalogue, int rotateValue, QPointF polarisPos);

/// Where the pole star has to be moved in the frame so that the pole comes onto the axis centre.
QPointF polarisTarget(QPointF polarisPos, QPointF pole, QPointF axisCenter);

/// Where star A is to be expected in the frame, from the template's angle and the pole star's
/// frame position.
QPointF predictedStarA(const StarCatalogue &catalogue, int rotateValue, QPointF polarisPos);
