// SPDX-License-Identifier: MIT
// Where are the rings of the templates, and how many of them contain a star of a frame?
#pragma once

#include "geometry/starfinder.h"

#include <QPointF>
#include <QSize>
#include <vector>

struct StarCatalogue;

/// One ring of a template, pixels of the mask image.
struct TemplateRing {
    double x, y;
    double radius;
};

/// The position of a template on the frame.
struct TemplatePlace {
    QPointF starB;    ///< the centre of rotation, frame pixels
    double angle = 0; ///< degrees, positive clockwise on the screen
    bool south = false;
};

/// How well a template fits the stars of a frame.
struct TemplateFit {
    int held = 0;  ///< rings that contain a star
    int rings = 0; ///< rings inside the frame
    int stars = 0; ///< stars inside the template
};

std::vector<TemplateRing> templateRings(bool south);

/// @param catalogue the hemisphere's, for the position of star B in the template
TemplateFit fitTemplate(const TemplatePlace &place, const StarCatalogue &catalogue,
                        const std::vector<FieldStar> &stars, QSize frame);

/// Whether the template is clearly misplaced: fewer than half of the rings that could contain a
/// star do. Always false for a frame with few stars or few rings.
bool isMisfit(const TemplateFit &fit);
