// SPDX-License-Identifier: MIT
// Where is the pole in a hemisphere's template mask image?
#pragma once

class QImage;
struct StarCatalogue;

/// Computes the template pole into the record, logs it at debug level and draws it on the mask as
/// a cross of ten pixels. The hemisphere, "north" or "south", is for the log alone.
/// Returns false, with a critical log line, the record's pole at (0, 0) and the mask untouched,
/// where the triangle gives no pole.
bool computeTemplatePole(StarCatalogue &catalogue, QImage &mask, const char *hemisphere);
