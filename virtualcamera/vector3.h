// SPDX-License-Identifier: MIT
// The vectors of astrometry/ under the virtual sky's own name.
#pragma once

#include "astrometry/vector3.h"

namespace virtualsky
{
using astrometry::angleBetween;
using astrometry::apply;
using astrometry::arcsecond;
using astrometry::cross;
using astrometry::degree;
using astrometry::direction;
using astrometry::dot;
using astrometry::length;
using astrometry::Matrix3;
using astrometry::pi;
using astrometry::product;
using astrometry::scaled;
using astrometry::transposed;
using astrometry::Vector3;
} // namespace virtualsky
