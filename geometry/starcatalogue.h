// SPDX-License-Identifier: MIT
// Which angles do the stars A, B and D make with the pole, and where are they in the template?
#pragma once

#include <QString>

class QDate;

/// One hemisphere's stars. Angles are degrees, positions pixels of the hemisphere's template mask
/// image, x to the right and y downwards.
struct StarCatalogue {
    double angleABP = 0.0;      ///< at B, between A and the pole
    double angleBAP = 0.0;      ///< at A, between B and the pole
    double angleDBP = 0.0;      ///< at B, between D and the pole
    double templatePoleX = 0.0; ///< zero until computeTemplatePole has run
    double templatePoleY = 0.0;
    double starBX = 0.0; ///< the pole star, at the centre of the mask image
    double starBY = 0.0;
    double starAX = 0.0;
    double starAY = 0.0;
    double starDX = 0.0;
    double starDY = 0.0;
};

/// The two catalogues of the process. Filled on the GUI thread before any other thread starts, and
/// only read after that.
extern StarCatalogue northCatalogue;
extern StarCatalogue southCatalogue;

/// The year (2016 to 2024) whose 23 May is within about half a year of the date; the first or last
/// year for dates outside the data, and the first for an invalid date.
int catalogueEpoch(const QDate &today);

/// Reads one hemisphere's INI file with the angles of 23 May of the epoch's year. A missing key
/// reads as 0; the template pole stays 0.
StarCatalogue readStarCatalogue(const QString &path, int epoch);

/// Fills both catalogues from the compiled-in files, south first, and logs the epoch at debug
/// level.
void loadStarCatalogues(const QDate &today);
