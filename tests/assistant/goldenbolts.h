// SPDX-License-Identifier: MIT
// Which axes do the golden rows give, and what frame shows each of them?
#pragma once

#include "assistant/errorfigures.h"

#include <QByteArray>
#include <QFile>
#include <QList>
#include <vector>

namespace goldenbolts
{
inline constexpr double november2026 = 1795204800.0;

struct Row {
    double latitude, boltAltitude, boltAzimuth; // degrees
    astrometry::Vector3 axis, right;            // east, north, up
    recognition::Covariance pixel;
    double altitude, azimuth, total;                // arcseconds
    double altitudeSigma, azimuthSigma, totalSigma; // arcseconds
};

/// tests/assistant/golden/bolts.csv
inline std::vector<Row> all()
{
    QFile file(QStringLiteral(PROJECT_SOURCE_DIR "/tests/assistant/golden/bolts.csv"));
    std::vector<Row> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    while (!file.atEnd()) {
        const QList<QByteArray> parts = file.readLine().trimmed().split(',');
        double v[18] = {};
        for (int i = 0; i < 18 && i < parts.size(); ++i)
            v[i] = parts[i].toDouble();
        rows.push_back({v[0],
                        v[1],
                        v[2],
                        {v[3], v[4], v[5]},
                        {v[6], v[7], v[8]},
                        {v[9], v[10], v[11]},
                        v[12],
                        v[13],
                        v[14],
                        v[15],
                        v[16],
                        v[17]});
    }
    return rows;
}

inline astrometry::Site siteOf(const Row &row)
{
    return {row.latitude, 116.0};
}

/// A recognised frame, 30 arcseconds a pixel, whose middle shows the axis.
inline recognition::Recognition frameOf(const Row &row)
{
    const astrometry::Matrix3 cirs =
        astrometry::transposed(astrometry::horizonFromCirs(siteOf(row), november2026));
    const auto forward = astrometry::apply(cirs, row.axis);
    const auto right = astrometry::apply(cirs, row.right);
    recognition::SkyMapping::Fit fit;
    fit.coefficients[1] = 30.0 * astrometry::arcsecond;
    recognition::Recognition frame;
    frame.status = recognition::RecognitionStatus::Recognised;
    frame.hemisphere =
        row.latitude < 0.0 ? recognition::Hemisphere::South : recognition::Hemisphere::North;
    frame.utcSeconds = november2026;
    frame.observed = true;
    frame.mapping = {
        {right, astrometry::cross(forward, right), forward}, {640.0, 480.0}, 1.0, false, fit};
    return frame;
}

inline assistant::FrameError errorOf(const Row &row, recognition::PoleTarget target)
{
    recognition::Axis axis;
    axis.status = recognition::AxisStatus::Found;
    axis.place = {640.0, 480.0};
    axis.covariance = row.pixel;
    assistant::Settings settings;
    settings.site = siteOf(row);
    settings.target = target;
    return assistant::frameErrorOf(frameOf(row), axis, settings).value();
}
} // namespace goldenbolts
