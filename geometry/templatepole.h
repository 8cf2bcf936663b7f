// SPDX-License-Identifier: MIT
// Where is the pole in a hemisphere's template mask image?
#pragma once

class QImage;
struct StarCatalogue;

/// Computes the template pole, stores it in the catalogue, logs it at debug level and draws it on
/// the mask as a cross of ten pixels. The hemisphere, "north" or "south", is only for the log. If
/// the triangle gives no pole, returns false with a critical log line, the catalogue's pole at
/// (0, 0) and the mask unchanged.
bool computeTemplatePole(StarCatalogue &catalogue, QImage &mask, const char *hemisphere);
