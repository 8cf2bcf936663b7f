// SPDX-License-Identifier: MIT
// Stands in for the catalogue program that INDI's simulated camera calls for its stars:
// `gsc -c RA+DEC -r ARCMINUTES -m MIN MAX -n COUNT`, degrees. Prints the catalogue's stars within
// the radius, twelve columns a line: number, right ascension, declination, error of the place,
// magnitude, its error, band, class, plate, multiple, distance, direction.
//
// With a sky file in GSC_SKY, and in GSC_HOME the right ascension (degrees) at which its RA angle
// is 0, the stars are displaced as the bolts of that file's mount are. With GSC_SPREAD each star
// covers some pixels of the program's scale, as a real lens draws it: the driver draws single ones.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "astrometry/catalogue.h"
#include "tests/indi/displacedsky.h"
#include "virtualcamera/skyfile.h"

namespace
{
std::vector<astrometry::CatalogueStar> starsFor(const displacedsky::SkyDirection &centre)
{
    const char *const sky = std::getenv("GSC_SKY");
    const char *const home = std::getenv("GSC_HOME");
    if (sky && home)
        return displacedsky::stars(virtualsky::parse(virtualsky::readText(sky)), centre,
                                   std::atof(home));
    const auto all = astrometry::catalogue();
    if (!std::getenv("GSC_SPREAD"))
        return {all.begin(), all.end()};
    std::vector<astrometry::CatalogueStar> parts;
    for (const astrometry::CatalogueStar &star : all)
        displacedsky::spread(star, parts);
    return parts;
}
} // namespace

int main(int argc, char *argv[])
try {
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
    const double ra = std::strtod(centre.c_str(), &rest);
    const double dec = std::strtod(rest, nullptr);
    const double least = std::cos(std::atof(radius.c_str()) / 60.0 * degree);
    int number = 0;
    for (const astrometry::CatalogueStar &star : starsFor({ra, dec})) {
        ++number;
        const double starDec = star.decDegrees * degree;
        const double cosine =
            std::sin(starDec) * std::sin(dec * degree) +
            std::cos(starDec) * std::cos(dec * degree) * std::cos((star.raDegrees - ra) * degree);
        if (cosine > least)
            std::printf("%010d %9.5f %+9.5f %4.1f %5.2f %4.2f %2d %d %4s %s %6.2f %3d\n", number,
                        star.raDegrees, star.decDegrees, 0.2, star.vMagnitude, 0.4, 0, 0, "0001",
                        "F", 10.0, 100);
    }
    return 0;
} catch (const std::exception &fault) {
    std::fprintf(stderr, "gsc: %s\n", fault.what());
    return 1;
}
