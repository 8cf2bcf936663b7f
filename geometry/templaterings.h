// SPDX-License-Identifier: MIT
// Where are the rings of the templates, and how many of them hold a star of a frame?
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

/// A template as it lies on the frame.
struct TemplatePlace {
    QPointF starB;    ///< the point that it is turned about, frame pixels
    double angle = 0; ///< degrees, positive clockwise on the screen
    bool south = false;
};

/// How a template fits what a frame shows.
struct TemplateFit {
    int held = 0;  ///< rings that hold a star
    int rings = 0; ///< rings that lie within the frame
    int stars = 0; ///< stars that lie within the template
};

std::vector<TemplateRing> templateRings(bool south);

/// \param catalogue the hemisphere's, for the place of star B in the template
TemplateFit fitTemplate(const TemplatePlace &place, const StarCatalogue &catalogue,
                        const std::vector<FieldStar> &stars, QSize frame);

/// Whether the template clearly lies wrong: less than half of the rings that could hold a star do.
/// Of a frame that shows few stars, or few rings, nothing is said.
bool isMisfit(const TemplateFit &fit);
