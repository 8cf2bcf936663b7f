// SPDX-License-Identifier: MIT
// Goes from marker to marker: the end of a preview inside of the file is not that of the file.
#include "pictures/jpegend.h"

#include <cstddef>

namespace pictures
{
namespace
{
constexpr unsigned startOfImage = 0xd8, endOfImage = 0xd9, startOfScan = 0xda;

unsigned byteAt(std::string_view bytes, std::size_t place)
{
    return static_cast<unsigned char>(bytes[place]);
}

bool standsAlone(unsigned marker) // without a length
{
    return marker == 0x01 || (marker >= 0xd0 && marker <= startOfImage);
}

/// The place of the marker behind coded data, in which 0xff is followed by 0 or a restart.
std::size_t behindScan(std::string_view bytes, std::size_t place)
{
    for (; place + 1 < bytes.size(); ++place) {
        const unsigned next = byteAt(bytes, place + 1);
        if (byteAt(bytes, place) == 0xff && next != 0 && next != 0xff && !standsAlone(next))
            return place;
    }
    return bytes.size();
}
} // namespace

bool isCutJpeg(std::string_view bytes)
{
    if (bytes.substr(0, 3) != "\xff\xd8\xff")
        return false;
    std::size_t place = 2;
    while (place + 1 < bytes.size()) {
        if (byteAt(bytes, place) != 0xff)
            return false;
        const unsigned marker = byteAt(bytes, place + 1);
        if (marker == endOfImage)
            return false;
        if (marker == 0xff) { // a fill byte
            ++place;
            continue;
        }
        place += 2;
        if (standsAlone(marker))
            continue;
        if (place + 1 >= bytes.size())
            return true;
        place += byteAt(bytes, place) << 8 | byteAt(bytes, place + 1);
        if (marker == startOfScan)
            place = behindScan(bytes, place);
    }
    return true;
}
} // namespace pictures
