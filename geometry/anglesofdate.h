// SPDX-License-Identifier: MIT
// Which angles do the template stars make with the true pole at a date, as the camera sees them?
#pragma once

struct StarCatalogue;

/// Replaces the catalogue's three angles by those of the apparent places in the true equator of
/// date: proper motion, parallax, annual aberration, precession and nutation. They are angles of
/// the plane triangle that a camera shows (gnomonic projection about the pole), degrees.
/// @param utcSeconds UTC since 1970
void takeAnglesOfDate(StarCatalogue &catalogue, bool south, double utcSeconds);
