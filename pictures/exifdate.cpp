// SPDX-License-Identifier: MIT
// A reader of the TIFF structure that all three formats keep their dates in; every access is within
// the file.
#include "pictures/exifdate.h"

#include <cstdint>
#include <cstdio>
#include <ctime>

namespace
{
using Block = std::optional<std::string_view>; // a TIFF structure

constexpr std::string_view exifMark("Exif\0\0", 6);
constexpr std::string_view pngMark("\x89PNG\r\n\x1a\n", 8);

unsigned byteAt(std::string_view bytes, std::size_t place)
{
    return static_cast<unsigned char>(bytes[place]);
}

/// Numbers and texts of a TIFF structure; places count from its start.
class Tiff
{
public:
    explicit Tiff(std::string_view structure) : bytes(structure)
    {
        const std::string_view order = bytes.substr(0, 2);
        little = order == "II";
        usable = bytes.size() >= 8 && (little || order == "MM") && number(2, 2) == 42;
    }
    bool isUsable() const { return usable; }
    std::size_t firstDirectory() const { return number(4, 4); }

    /// The text of an entry, without the 0 at its end; empty if there is none.
    std::string text(std::size_t directory, unsigned tag) const
    {
        constexpr std::size_t inline4 = 4; // shorter values are in the entry itself
        const std::size_t entry = find(directory, tag, asciiType);
        if (entry == 0)
            return {};
        const std::size_t length = number(entry + 4, 4);
        const std::size_t place = length <= inline4 ? entry + 8 : number(entry + 8, 4);
        if (place > bytes.size() || length > bytes.size() - place)
            return {};
        const std::string_view value = bytes.substr(place, length);
        return std::string(value.substr(0, value.find('\0')));
    }
    /// The directory that an entry points to; 0 if there is none.
    std::size_t directory(std::size_t in, unsigned tag) const
    {
        const std::size_t entry = find(in, tag, longType);
        return entry == 0 ? 0 : number(entry + 8, 4);
    }

private:
    static constexpr unsigned asciiType = 2, longType = 4;

    /// 0 beyond the end.
    std::size_t number(std::size_t place, std::size_t size) const
    {
        if (place > bytes.size() || size > bytes.size() - place)
            return 0;
        std::size_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | byteAt(bytes, little ? place + size - 1 - i : place + i);
        return value;
    }
    std::size_t find(std::size_t directory, unsigned tag, unsigned type) const
    {
        constexpr std::size_t entrySize = 12;
        const std::size_t count = directory == 0 ? 0 : number(directory, 2);
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t entry = directory + 2 + i * entrySize;
            if (entry + entrySize > bytes.size())
                return 0;
            if (number(entry, 2) == tag && number(entry + 2, 2) == type)
                return entry;
        }
        return 0;
    }

    std::string_view bytes;
    bool little = false;
    bool usable = false;
};

Block exifOfJpeg(std::string_view file)
{
    constexpr unsigned app1 = 0xe1, startOfScan = 0xda;
    std::size_t place = 2;
    while (place + 4 <= file.size() && byteAt(file, place) == 0xff) {
        const unsigned marker = byteAt(file, place + 1);
        const std::size_t length = byteAt(file, place + 2) << 8 | byteAt(file, place + 3);
        const std::string_view content = file.substr(place + 4, length < 2 ? 0 : length - 2);
        if (marker == app1 && content.substr(0, exifMark.size()) == exifMark)
            return content.substr(exifMark.size());
        if (marker == startOfScan || length < 2)
            break;
        place += 2 + length;
    }
    return std::nullopt;
}

Block exifOfPng(std::string_view file)
{
    constexpr std::size_t frameSize = 12; // length, type and check sum of a chunk
    std::size_t place = pngMark.size();
    while (place + frameSize <= file.size()) {
        std::size_t length = 0;
        for (std::size_t i = 0; i < 4; ++i)
            length = length << 8 | byteAt(file, place + i);
        if (length > file.size() - place - frameSize)
            break;
        if (file.substr(place + 4, 4) == "eXIf")
            return file.substr(place + 8, length);
        place += frameSize + length;
    }
    return std::nullopt;
}

Block structureOf(std::string_view file)
{
    if (file.substr(0, 2) == "\xff\xd8")
        return exifOfJpeg(file);
    if (file.substr(0, pngMark.size()) == pngMark)
        return exifOfPng(file);
    return file;
}

struct DateTags {
    bool inExif; // or in the first directory
    unsigned date, offset;
};
constexpr DateTags datesByRank[] = {
    {true, 0x9003, 0x9011},  // original
    {true, 0x9004, 0x9012},  // digitized
    {false, 0x0132, 0x9010}, // last changed
};
constexpr unsigned exifDirectoryTag = 0x8769;
} // namespace

std::optional<double> parseExifDate(const std::string &date, const std::string &offset)
{
    std::tm when = {};
    int length = 0;
    if (std::sscanf(date.c_str(), "%4d:%2d:%2d %2d:%2d:%2d%n", &when.tm_year, &when.tm_mon,
                    &when.tm_mday, &when.tm_hour, &when.tm_min, &when.tm_sec, &length) != 6 ||
        std::size_t(length) != date.size())
        return std::nullopt;
    const bool possible = when.tm_year >= 1990 && when.tm_year <= 2100 && when.tm_mon >= 1 &&
                          when.tm_mon <= 12 && when.tm_mday >= 1 && when.tm_mday <= 31 &&
                          when.tm_hour >= 0 && when.tm_hour < 24 && when.tm_min >= 0 &&
                          when.tm_min < 60 && when.tm_sec >= 0 && when.tm_sec <= 60;
    if (!possible)
        return std::nullopt;
    when.tm_year -= 1900;
    when.tm_mon -= 1;
    when.tm_isdst = -1;
    char sign[2] = {};
    int hours = 0, minutes = 0;
    if (std::sscanf(offset.c_str(), "%1[+-]%2d:%2d", sign, &hours, &minutes) != 3)
        return double(std::mktime(&when));
    const double ahead = 3600.0 * hours + 60.0 * minutes;
    return double(timegm(&when)) - (sign[0] == '-' ? -ahead : ahead);
}

std::optional<double> dateOfPicture(std::string_view file)
{
    const Block structure = structureOf(file);
    if (!structure)
        return std::nullopt;
    const Tiff tiff(*structure);
    if (!tiff.isUsable())
        return std::nullopt;
    const std::size_t first = tiff.firstDirectory();
    const std::size_t exif = tiff.directory(first, exifDirectoryTag);
    for (const DateTags &tags : datesByRank) {
        const std::optional<double> date = parseExifDate(
            tiff.text(tags.inExif ? exif : first, tags.date), tiff.text(exif, tags.offset));
        if (date)
            return date;
    }
    return std::nullopt;
}
