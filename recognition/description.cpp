// SPDX-License-Identifier: MIT
// What is said of a recognition: reason, roll, names.
#include "astrometry/catalogue.h"
#include "recognition/recognise.h"

#include <cmath>
#include <cstdio>

namespace recognition
{
namespace
{
using astrometry::degree;
using astrometry::Vector3;

constexpr double littleWay = 0.05 * degree; // from the pole along an hour circle
constexpr std::size_t mayBeNoise = 30;      // of fewer stars, most may be peaks of the noise

std::string noMatchReason(std::size_t extracted)
{
    const std::string first = extracted < mayBeNoise
                                  ? "Expose longer or raise the gain first: at least " +
                                        std::to_string(enoughStars) + " real stars are needed. "
                                  : "";
    return "None of the " + std::to_string(extracted) +
           " stars fit the sky within 10 degrees of the pole. " + first +
           "Point the camera nearer to the pole, or check scale, hemisphere and mirroring if they "
           "were given.";
}
} // namespace

double rollOf(const SkyMapping &mapping, Hemisphere hemisphere, double utcSeconds)
{
    const double sign = hemisphere == Hemisphere::North ? 1.0 : -1.0;
    const double meridian = astrometry::equationOfOrigins(utcSeconds); // CIRS right ascension
    const std::optional<PixelPlace> pole = mapping.pixelOf({0.0, 0.0, sign});
    const std::optional<PixelPlace> away =
        mapping.pixelOf(astrometry::direction(meridian, sign * (90.0 * degree - littleWay)));
    if (!pole || !away)
        return 0.0;
    return std::atan2(away->x - pole->x, pole->y - away->y) / degree;
}

std::string starName(std::size_t catalogueIndex)
{
    const astrometry::CatalogueStar &star = astrometry::catalogue().begin()[catalogueIndex];
    if (star.name[0] != '\0')
        return star.name;
    char text[32];
    if (star.hd != 0)
        std::snprintf(text, sizeof text, "HD %d", star.hd);
    else
        std::snprintf(text, sizeof text, "%.3f%+.3f", star.raDegrees, star.decDegrees);
    return text;
}

std::string reason(const Recognition &recognition)
{
    const std::string stars = std::to_string(recognition.extracted);
    switch (recognition.status) {
    case RecognitionStatus::Recognised:
        return "Recognised " + std::to_string(recognition.matched.size()) + " of " + stars +
               " stars.";
    case RecognitionStatus::TooFewStars:
        return "Too few stars: " + stars + " found, at least " + std::to_string(enoughStars) +
               " needed. Expose longer, raise the gain, or use a wider field.";
    case RecognitionStatus::NoMatch:
        return noMatchReason(recognition.extracted);
    case RecognitionStatus::InvalidOptions:
        break;
    }
    return "The size of the frame, the range of scales, the date or the accepted chance is out of "
           "range.";
}
} // namespace recognition
