// SPDX-License-Identifier: MIT
// The star catalogue of astrometry/ under the virtual sky's own name.
#pragma once

#include "astrometry/catalogue.h"

namespace virtualsky
{
using astrometry::catalogue;
using astrometry::CatalogueStar;
using astrometry::CatalogueView;
using astrometry::nearestStar;
using astrometry::templateStar;
using astrometry::TemplateStar;
} // namespace virtualsky
