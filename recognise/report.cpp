// SPDX-License-Identifier: MIT
// Sentences and JSON objects.
#include "recognise/report.h"

#include <cmath>
#include <cstdio>

namespace
{
using recognition::Extraction;
using recognition::ExtractionStatus;
using recognition::Hemisphere;
using recognition::Recognition;

template <typename... Values> std::string formatted(const char *format, Values... values)
{
    char text[400];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

/// The length of the UTF-8 sequence at a place; 0 if it is none.
std::size_t sequenceLength(const std::string &text, std::size_t place)
{
    const auto byte = [&text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u;
    };
    const unsigned first = byte(place);
    const std::size_t length = first < 0x80                    ? 1
                               : first >= 0xc2 && first < 0xe0 ? 2
                               : first >= 0xe0 && first < 0xf0 ? 3
                               : first >= 0xf0 && first < 0xf5 ? 4
                                                               : 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(place + i) & 0xc0u) != 0x80u)
            return 0;
    const unsigned second = byte(place + 1);
    const bool overlong = (first == 0xe0 && second < 0xa0) || (first == 0xf0 && second < 0x90);
    const bool outside = (first == 0xed && second >= 0xa0) || (first == 0xf4 && second >= 0x90);
    return overlong || outside ? 0 : length;
}

std::string quoted(const std::string &text)
{
    std::string out = "\"";
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = sequenceLength(text, i);
        const auto byte = static_cast<unsigned char>(text[i]);
        if (length == 0)
            out += "\\ufffd";
        else if (byte == '"' || byte == '\\')
            out += {'\\', text[i]};
        else if (byte < 0x20)
            out += formatted("\\u%04x", unsigned(byte));
        else
            out += text.substr(i, length);
        i += length == 0 ? 1 : length;
    }
    return out + '"';
}

std::string numberOrNull(bool known, const char *format, double value)
{
    return known && std::isfinite(value) ? formatted(format, value) : "null";
}

const char *nameOf(Hemisphere hemisphere)
{
    return hemisphere == Hemisphere::North ? "north" : "south";
}
} // namespace

std::string reasonOf(const PictureReport &report)
{
    if (!report.complaint.empty())
        return report.complaint;
    if (report.isRecognised())
        return {};
    // Options that make no sense are worse than a frame of no use.
    const bool frame = report.extraction.status != ExtractionStatus::Ok &&
                       report.recognition.status != recognition::RecognitionStatus::InvalidOptions;
    return frame ? recognition::reasonOf(report.extraction)
                 : recognition::reason(report.recognition);
}

std::string sentenceOf(const PictureReport &report)
{
    const Recognition &found = report.recognition;
    if (!report.isRecognised())
        return report.file + ": not recognised. " + reasonOf(report);
    const bool inside = found.pole.x >= -0.5 && found.pole.y >= -0.5 &&
                        found.pole.x < found.width - 0.5 && found.pole.y < found.height - 0.5;
    return report.file +
           formatted(": the %s pole is at %.2f, %.2f%s, sure to %.1f\"; %.2f\" a pixel, roll "
                     "%.1f deg%s; %zu of %zu stars match within %.1f\"; %.3f s.",
                     nameOf(found.hemisphere), found.pole.x, found.pole.y,
                     inside ? "" : " (outside the picture)", found.poleSigmaArcseconds, found.scale,
                     found.rollDegrees, found.mirrored ? ", mirrored" : "", found.matched.size(),
                     found.extracted, found.rms, report.seconds);
}

std::string jsonOf(const PictureReport &report)
{
    const Recognition &found = report.recognition;
    const bool known = report.isRecognised();
    std::string out = "{\"file\": " + quoted(report.file);
    out += formatted(", \"recognised\": %s", known ? "true" : "false");
    if (!known)
        out += ", \"reason\": " + quoted(reasonOf(report));
    out += ", \"hemisphere\": " + (known ? quoted(nameOf(found.hemisphere)) : "null");
    out += ", \"pole_x\": " + numberOrNull(known, "%.4f", found.pole.x);
    out += ", \"pole_y\": " + numberOrNull(known, "%.4f", found.pole.y);
    out += ", \"pole_sigma_arcsec\": " + numberOrNull(known, "%.3f", found.poleSigmaArcseconds);
    out += ", \"scale_arcsec\": " + numberOrNull(known, "%.5f", found.scale);
    out += ", \"roll_deg\": " + numberOrNull(known, "%.4f", found.rollDegrees);
    out += std::string(", \"mirrored\": ") + (!known ? "null" : found.mirrored ? "true" : "false");
    out += ", \"matched\": " + std::to_string(known ? found.matched.size() : 0);
    out += ", \"extracted\": " + std::to_string(report.extraction.stars.size());
    out += ", \"rms_arcsec\": " + numberOrNull(known, "%.3f", found.rms);
    out += formatted(", \"seconds\": %.6f}", report.seconds);
    return out;
}
