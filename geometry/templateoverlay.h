// SPDX-License-Identifier: MIT
// Where is the template on the screen, and which frame positions follow from its angle?
#pragma once

#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QRect>

struct StarCatalogue;

// Frame pixels and template (mask) pixels have the same scale: template offsets are added to frame
// positions as they are. View pixels are frame pixels times the zoom factor. x points right, y
// down. Angles are whole degrees, positive clockwise on the screen.

/// A picture and its rectangle in view pixels; both null if there is nothing to show. The top-left
/// corner stays within 2^24 pixels of the origin.
struct PlacedTemplate {
    QImage image;
    QRect geometry;
};

/// The mask scaled by the zoom factor and rotated, with the rotated picture's middle pixel on the
/// click (view pixels). The picture is null for a zoom factor that is zero, negative or NaN, or
/// that gives more than 4096 pixels on a side.
PlacedTemplate turnTemplate(const QImage &mask, int angle, float zoomFactor, QPoint clickViewPos);

/// The mask scaled by the zoom factor, not rotated, centred on templateCenter (frame pixels). Null
/// as for turnTemplate.
PlacedTemplate flatTemplate(const QImage &mask, float zoomFactor, QPointF templateCenter);

/// The view pixel of a frame position, truncated toward zero (saturated at int's range).
QPoint viewPosition(float zoomFactor, QPointF framePosition);

/// The pole in the frame, from the template's angle and the pole star's frame position.
QPointF expectedPole(const StarCatalogue &catalogue, int rotateValue, QPointF polarisPos);

/// The frame position to which the pole star must be moved so that the pole is at the axis centre.
QPointF polarisTarget(QPointF polarisPos, QPointF pole, QPointF axisCenter);

/// The expected position of star A in the frame, from the template's angle and the pole star's
/// frame position.
QPointF predictedStarA(const StarCatalogue &catalogue, int rotateValue, QPointF polarisPos);
