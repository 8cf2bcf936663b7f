// SPDX-License-Identifier: MIT
// Which stars are there, and which of them do the templates use?
#pragma once

#include <cstddef>
#include <iterator>

namespace astrometry
{
/// One line of pole_stars.csv. ICRS, epoch J2000.0.
struct CatalogueStar {
    double raDegrees;
    double decDegrees;
    double pmRaCosDec; ///< milliarcseconds a year on the great circle
    double pmDec;      ///< milliarcseconds a year
    double parallax;   ///< milliarcseconds
    double vMagnitude;
    double bMinusV;
    int hd = 0;            ///< number in the Henry Draper catalogue, 0 if it has none
    const char *name = ""; ///< such as "alp UMi, Polaris"; empty if it has none
};

struct CatalogueView {
    const CatalogueStar *first;
    const CatalogueStar *last;
    const CatalogueStar *begin() const { return first; }
    const CatalogueStar *end() const { return last; }
    std::size_t size() const { return static_cast<std::size_t>(last - first); }
};

/// All stars, built into the library.
CatalogueView catalogue();

enum class TemplateStar { A, B, D };

/// The catalogue star in the template of a hemisphere.
const CatalogueStar &templateStar(bool south, TemplateStar star);

/// The catalogue star nearest to a place (degrees, ICRS), by the angle between them.
const CatalogueStar &nearestStar(double raDegrees, double decDegrees);
} // namespace astrometry
