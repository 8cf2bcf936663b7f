// SPDX-License-Identifier: MIT
// How far from the truth are the star positions, the axis and the pole that the method finds?
#pragma once

#include <QPointF>
#include <QString>
#include <vector>

/// One sky under which the method is tested.
struct AccuracyCase {
    QString name; ///< of the light and noise conditions
    QString date; ///< of the sky, "yyyy-MM-dd"
    int epoch;    ///< year of the built-in angles that are used
    bool south;
    double seconds; ///< exposure
    double gain;    ///< camera units
    double clouds;  ///< fraction of the light that is blocked
    bool noise;
};

/// Errors of one star's position along one axis, pixels.
struct CentroidError {
    double rms;   ///< found - true
    double bound; ///< lower limit for any unbiased method (Cramér-Rao); 0 without noise
};

struct Accuracy {
    CentroidError starA, starB;
    double axisRms;     ///< pixels; axis from picks of star D at three angles of the RA axis
    double poleMean;    ///< arcseconds; distance of the mean pole from the true one
    double poleRms;     ///< arcseconds; distance of single poles from the true one
    double poleScatter; ///< arcseconds; of single poles about their mean, both axes together
    int failures; ///< stars, poles and axes that were not found; they are excluded from the errors
};

/// All combinations of hemisphere, date and light in the report.
std::vector<AccuracyCase> accuracyCases();

/// The error of the triangle alone with perfect star positions, arcseconds, computed independently
/// from apparent places; 0 for dates that are not in the table.
double poleErrorOfTheAngles(const QString &date, bool south);

/// Applies the method to `trials` frames of the virtual camera, each with different noise and star
/// positions relative to the pixel grid.
Accuracy measureAccuracy(const AccuracyCase &sky, int trials);
