// SPDX-License-Identifier: MIT
// Edits a sky file's text line by line.
#include "cameracommand/skyvalues.h"

#include <algorithm>
#include <string_view>

#include "virtualcamera/text.h"

namespace
{
using virtualsky::trimmed;
constexpr std::size_t nowhere = std::string::npos;

/// Offsets in the text.
struct KeyLine {
    int line = 0;
    std::size_t begin = 0, end = 0;           // of the key's line, with its line end
    std::size_t equals = nowhere;             // nowhere: there is no such key
    std::size_t valueBegin = 0, valueEnd = 0; // blanks excluded
    std::size_t insertion = nowhere;          // behind the section's line; nowhere: no such section
};

KeyLine keyLineOf(const std::string &text, const std::string &section, const std::string &key)
{
    KeyLine place;
    std::string_view current;
    while (place.end < text.size()) {
        place.begin = place.end;
        place.end = std::min(text.find('\n', place.begin), text.size() - 1) + 1;
        ++place.line;
        const std::string_view whole =
            std::string_view(text).substr(place.begin, place.end - place.begin);
        const std::string_view plain = trimmed(whole.substr(0, whole.find_first_of("#;\n")));
        const std::size_t equals = plain.find('=');
        if (plain.size() > 1 && plain.front() == '[' && plain.back() == ']') {
            current = trimmed(plain.substr(1, plain.size() - 2));
        } else if (current == section && equals != nowhere &&
                   trimmed(plain.substr(0, equals)) == key) {
            const auto offset = [&text](const char *at) { return std::size_t(at - text.data()); };
            const std::string_view value = trimmed(plain.substr(equals + 1));
            place.equals = offset(plain.data() + equals);
            place.valueBegin = value.empty() ? place.equals + 1 : offset(value.data());
            place.valueEnd = place.valueBegin + value.size();
            return place;
        }
        if (current == section && place.insertion == nowhere)
            place.insertion = place.end;
    }
    return place;
}
} // namespace

std::optional<SkyLine> skyLine(const std::string &text, const std::string &section,
                               const std::string &key)
{
    const KeyLine place = keyLineOf(text, section, key);
    if (place.equals == nowhere)
        return std::nullopt;
    std::string line = text.substr(place.begin, place.end - place.begin);
    line = line.substr(0, line.find('\n'));
    return SkyLine{place.line, std::string(trimmed(line))};
}

std::string withSkyValue(const std::string &text, const std::string &section,
                         const std::string &key, const std::string &value)
{
    const KeyLine place = keyLineOf(text, section, key);
    if (place.equals != nowhere) {
        const bool isEmpty = place.valueBegin == place.valueEnd;
        return text.substr(0, place.valueBegin) + (isEmpty ? " " : "") + value +
               text.substr(place.valueEnd);
    }
    const std::size_t firstEnd = text.find('\n');
    const bool returns = firstEnd != nowhere && firstEnd > 0 && text[firstEnd - 1] == '\r';
    const std::string end = returns ? "\r\n" : "\n", line = key + " = " + value + end;
    if (place.insertion != nowhere)
        return std::string(text).insert(place.insertion, line);
    return text + '[' + section + ']' + end + line;
}
