// SPDX-License-Identifier: MIT
// The sentences about frames without stars.
#include <cstdio>

#include "recognition/extraction.h"

namespace recognition
{
namespace
{
std::string withNumber(const char *format, double number)
{
    char text[200];
    std::snprintf(text, sizeof text, format, number);
    return text;
}
} // namespace

std::string reasonOf(const Extraction &extraction)
{
    switch (extraction.status) {
    case ExtractionStatus::Ok:
        return {};
    case ExtractionStatus::BadFrame:
        return "The picture cannot be used: it must have 8 or 16 bits, 1 or 3 channels and at "
               "least "
               "32 x 32 pixels.";
    case ExtractionStatus::TooLarge:
        return "The picture is too large: 24 megapixels are the most.";
    case ExtractionStatus::Black:
        return "The picture is black: take the cap off the lens or expose longer.";
    case ExtractionStatus::SaturatedSky:
        return "The sky itself is at full brightness: expose shorter, lower the gain, or wait for "
               "the night.";
    case ExtractionStatus::NoSky:
        return "This does not look like the sky at night: point the camera at the sky.";
    case ExtractionStatus::OutOfFocus:
        return withNumber("Out of focus: the stars are %.1f pixels wide. Focus the lens.",
                          extraction.fwhm);
    case ExtractionStatus::Trailed:
        return withNumber(
            "The stars are trailed, %.1f times as long as wide: keep the mount still, "
            "or expose shorter.",
            extraction.elongation);
    case ExtractionStatus::TooFewStars:
        return withNumber("Too few stars (%.0f): expose longer, raise the gain, focus the lens, or "
                          "wait for the clouds to pass.",
                          double(extraction.stars.size()));
    }
    return {};
}
} // namespace recognition
