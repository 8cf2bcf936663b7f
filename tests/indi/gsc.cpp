// SPDX-License-Identifier: MIT
// Stands in for the catalogue program that INDI's simulated camera calls for its stars:
// `gsc -c RA+DEC -r ARCMINUTES -m MIN MAX -n COUNT`, degrees. Prints the catalogue's stars within
// the radius, twelve columns a line: number, right ascension, declination, error of the place,
// magnitude, its error, band, class, plate, multiple, distance, direction.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "astrometry/catalogue.h"

int main(int argc, char *argv[])
{
    const double degree = std::acos(-1.0) / 180.0;
    std::string centre, radius;
    for (int i = 1; i < argc; ++i) { // a sign may stand apart
        if (std::strcmp(argv[i], "-c") == 0)
            while (i + 1 < argc && std::strcmp(argv[i + 1], "-r") != 0)
                centre += std::string(argv[++i]) + ' ';
        else if (std::strcmp(argv[i], "-r") == 0 && i + 1 < argc)
            radius = argv[++i];
    }
    char *rest = nullptr;
    const double ra = std::strtod(centre.c_str(), &rest) * degree;
    const double dec = std::strtod(rest, nullptr) * degree;
    const double least = std::cos(std::atof(radius.c_str()) / 60.0 * degree);
    int number = 0;
    for (const astrometry::CatalogueStar &star : astrometry::catalogue()) {
        ++number;
        const double starDec = star.decDegrees * degree;
        const double cosine =
            std::sin(starDec) * std::sin(dec) +
            std::cos(starDec) * std::cos(dec) * std::cos(star.raDegrees * degree - ra);
        if (cosine > least)
            std::printf("%010d %9.5f %+9.5f %4.1f %5.2f %4.2f %2d %d %4s %s %6.2f %3d\n", number,
                        star.raDegrees, star.decDegrees, 0.2, star.vMagnitude, 0.4, 0, 0, "0001",
                        "F", 10.0, 100);
    }
    return 0;
}
