// SPDX-License-Identifier: MIT
// The star lists of golden/fields.csv.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QList>

#include "astrometry/utcdate.h"
#include "recognition/recognise.h"

#include <vector>

namespace goldenfields
{
struct Field {
    QByteArray name;
    double utcSeconds;
    int width, height;
    recognition::Hemisphere hemisphere;
    double scale, roll;
    bool mirrored;
    recognition::PixelPlace pole;
    double allowed; ///< pixels
    std::vector<recognition::DetectedStar> stars;
    std::vector<int> catalogue; ///< of each star, -1 for a false one
};

inline Field fieldOf(const QList<QByteArray> &f)
{
    return {f[1],
            astrometry::parseDate(f[2].toStdString()).value_or(0.0),
            f[3].toInt(),
            f[4].toInt(),
            f[5] == "south" ? recognition::Hemisphere::South : recognition::Hemisphere::North,
            f[6].toDouble(),
            f[7].toDouble(),
            f[8] == "1",
            {f[9].toDouble(), f[10].toDouble()},
            f[11].toDouble(),
            {},
            {}};
}

/// Empty if the file cannot be read.
inline std::vector<Field> read()
{
    QFile file(QStringLiteral(TEST_SOURCE_DIR "/golden/fields.csv"));
    std::vector<Field> fields;
    if (!file.open(QIODevice::ReadOnly))
        return fields;
    while (!file.atEnd()) {
        const QList<QByteArray> f = file.readLine().trimmed().split(',');
        if (f[0] == "field") {
            fields.push_back(fieldOf(f));
        } else {
            fields.back().stars.push_back(
                {f[1].toDouble(), f[2].toDouble(), f[3].toDouble(), f[4].toDouble(), 2.5, false});
            fields.back().catalogue.push_back(f[5].toInt());
        }
    }
    return fields;
}

inline const std::vector<Field> &all()
{
    static const std::vector<Field> fields = read();
    return fields;
}
} // namespace goldenfields
