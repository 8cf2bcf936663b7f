// SPDX-License-Identifier: MIT
// How far from the truth are the star positions, the axis and the pole that the method finds?
#pragma once

#include <QPointF>
#include <QString>
#include <vector>

/// One sky under which the method is tried.
struct AccuracyCase {
    QString name; ///< of the light and noise
    QString date; ///< of the sky, "yyyy-MM-dd"
    int epoch;    ///< year of the built-in angles that are used
    bool south;
    double seconds; ///< exposure
    double gain;    ///< camera units
    double clouds;  ///< part of the light that is held back
    bool noise;
};

/// Errors of one star's position in pixels, one axis.
struct CentroidError {
    double rms;   ///< found - true
    double bound; ///< the least that any unbiased method could reach (Cramér-Rao); 0 without noise
};

struct Accuracy {
    CentroidError starA, starB;
    double axisRms;     ///< pixels; axis from picks of star D at three angles of the RA axis
    double poleMean;    ///< arcseconds; distance of the mean pole from the true one
    double poleRms;     ///< arcseconds; distance of single poles from the true one
    double poleScatter; ///< arcseconds; of single poles about their mean, both axes together
    int failures;       ///< stars, poles and axes that were not found; the errors leave them out
};

/// Every hemisphere, date and light of the report.
std::vector<AccuracyCase> accuracyCases();

/// What the triangle alone gives with perfect star positions, arcseconds, computed elsewhere from
/// the apparent places; 0 for dates that are not in the table.
double poleErrorOfTheAngles(const QString &date, bool south);

/// Tries the method on `trials` frames of the virtual camera, each with noise of its own and the
/// stars at other places between the pixels.
Accuracy measureAccuracy(const AccuracyCase &sky, int trials);
