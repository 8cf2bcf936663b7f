// SPDX-License-Identifier: MIT
// Places and refraction of astrometry/ under the virtual sky's own name.
#pragma once

#include "astrometry/places.h"
#include "astrometry/refraction.h"
#include "virtualcamera/catalogue.h"
#include "virtualcamera/vector3.h"

namespace virtualsky
{
using astrometry::apparentPlaces;
using astrometry::horizonFromCirs;
using astrometry::refracted;
using astrometry::RefractionConstants;
using astrometry::refractionConstants;
using astrometry::Site;
} // namespace virtualsky
