// SPDX-License-Identifier: MIT
// Reads INDI's messages.
#include "framesources/indivalues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <zlib.h>

namespace framesources
{
namespace
{
constexpr std::size_t maxBlobBytes = std::size_t(1) << 28; // a frame of 64 megapixels is less
constexpr std::size_t maxNames = 5000;                     // of a server that means harm
constexpr std::string_view spaces = " \t\r\n";

/// Without one of these a device is no camera any more; others come and go with its settings.
constexpr const char *needed[] = {"CONNECTION", "CCD_EXPOSURE", "CCD_VIDEO_STREAM",
                                  pictureProperty};

std::string attribute(XMLEle *element, const char *name)
{
    return findXMLAttValu(element, name); // never null
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(spaces);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

bool isOneOf(std::string_view tag, std::string_view prefix)
{
    return tag.substr(0, prefix.size()) == prefix;
}

void takeState(XMLEle *message, IndiState &state)
{
    // Nothing of it is destroyed: a camera's thread may outlive main().
    static constexpr std::pair<std::string_view, IndiState> states[] = {
        {"Idle", IndiState::Idle},
        {"Ok", IndiState::Ok},
        {"Busy", IndiState::Busy},
        {"Alert", IndiState::Alert}};
    const std::string_view name = findXMLAttValu(message, "state");
    for (const auto &[text, meant] : states)
        if (name == text)
            state = meant;
}

void addName(std::vector<std::string> &names, const std::string &name)
{
    if (names.size() < maxNames && std::find(names.begin(), names.end(), name) == names.end())
        names.push_back(name);
}

void removeName(std::vector<std::string> &names, const std::string &name)
{
    names.erase(std::remove(names.begin(), names.end(), name), names.end());
}

/// Up to the first character that base64 does not have.
std::string fromBase64(std::string_view text)
{
    static const std::array<signed char, 256> digits = [] {
        std::array<signed char, 256> table;
        table.fill(-1);
        constexpr std::string_view alphabet =
            "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        for (std::size_t i = 0; i < alphabet.size(); ++i)
            table[static_cast<unsigned char>(alphabet[i])] = static_cast<signed char>(i);
        return table;
    }();
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3 + 3);
    std::uint32_t bits = 0;
    int have = 0;
    for (const char c : text) {
        const int digit = digits[static_cast<unsigned char>(c)];
        if (digit < 0) {
            if (spaces.find(c) != std::string_view::npos)
                continue;
            break;
        }
        bits = bits << 6 | static_cast<std::uint32_t>(digit);
        if (++have == 4) {
            const char three[] = {char(bits >> 16), char(bits >> 8), char(bits)};
            bytes.append(three, sizeof three);
            have = 0;
        }
    }
    if (have > 1)
        bytes += char(bits >> (have == 3 ? 10 : 4));
    if (have > 2)
        bytes += char(bits >> 2);
    return bytes;
}

/// As much as can be decompressed.
std::string inflated(std::string &bytes)
{
    std::string out;
    z_stream stream = {};
    if (inflateInit(&stream) != Z_OK)
        return out;
    stream.next_in = reinterpret_cast<Bytef *>(bytes.data());
    stream.avail_in = static_cast<uInt>(bytes.size());
    std::vector<char> part(std::size_t(1) << 18);
    int status = Z_OK;
    while (status == Z_OK && out.size() < maxBlobBytes) {
        stream.next_out = reinterpret_cast<Bytef *>(part.data());
        stream.avail_out = static_cast<uInt>(part.size());
        status = inflate(&stream, Z_NO_FLUSH);
        out.append(part.data(), part.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return out;
}
} // namespace

std::optional<double> parseNumber(std::string_view text)
{
    text = trimmed(text);
    const bool isNegative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);
    double total = 0.0, unit = 1.0;
    for (int part = 0; part < 3; ++part, unit /= 60.0) {
        double value = 0.0;
        const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (fault != std::errc()) {
            if (part == 0)
                return std::nullopt;
            break;
        }
        total += value * unit;
        text.remove_prefix(std::size_t(end - text.data()));
        if (text.empty() || (text.front() != ':' && text.front() != ';' && text.front() != ' '))
            break;
        text.remove_prefix(1);
    }
    if (!std::isfinite(total)) // "nan", "inf", and a sum of parts that is too great
        return std::nullopt;
    return isNegative ? -total : total;
}

IndiBlob decoded(const EncodedBlob &blob)
{
    constexpr std::string_view compressed = ".z";
    IndiBlob out;
    out.format = blob.format;
    out.bytes = fromBase64(blob.text);
    if (out.format.size() >= compressed.size() &&
        out.format.compare(out.format.size() - compressed.size(), compressed.size(), compressed) ==
            0) {
        out.format.resize(out.format.size() - compressed.size());
        out.bytes = inflated(out.bytes);
    }
    // What the sender says may be shorter, never longer, than what came.
    if (blob.size > 0 && std::size_t(blob.size) < out.bytes.size())
        out.bytes.resize(std::size_t(blob.size));
    return out;
}

void IndiValues::take(XMLEle *message, std::vector<std::string> &blobs)
{
    const std::string_view tag = tagXMLEle(message);
    const std::string owner = attribute(message, "device"), name = attribute(message, "name");
    if (owner.empty())
        return;
    if (const std::string said = attribute(message, "message"); owner == device && !said.empty())
        remark = said;
    if (isOneOf(tag, "def"))
        define(message, owner, name);
    else if (isOneOf(tag, "set") && owner == device)
        update(message, name, blobs);
    else if (tag == "delProperty")
        remove(owner, name);
}

void IndiValues::define(XMLEle *message, const std::string &owner, const std::string &name)
{
    addName(names, owner);
    if (name == "CCD_EXPOSURE" || name == "CCD_VIDEO_STREAM")
        addName(imaging, owner);
    if (owner != device || (properties.size() >= maxNames && properties.count(name) == 0))
        return;
    Property property;
    takeState(message, property.state);
    setElements(message, property);
    properties[name] = std::move(property);
}

void IndiValues::update(XMLEle *message, const std::string &name, std::vector<std::string> &blobs)
{
    const auto found = properties.find(name);
    if (found == properties.end())
        return;
    takeState(message, found->second.state);
    setElements(message, found->second);
    std::size_t next = 0;
    for (XMLEle *one = nextXMLEle(message, 1); one && next < blobs.size();
         one = nextXMLEle(message, 0)) {
        if (std::string_view(tagXMLEle(one)) != "oneBLOB")
            continue;
        EncodedBlob came{std::move(blobs[next++]), attribute(one, "format"), 0};
        const std::string size = attribute(one, "size");
        (void)std::from_chars(size.data(), size.data() + size.size(), came.size);
        if (name == pictureProperty && !came.text.empty())
            blob = std::move(came);
    }
}

/// An element that was not defined is none.
void IndiValues::setElements(XMLEle *message, Property &property)
{
    for (XMLEle *one = nextXMLEle(message, 1); one; one = nextXMLEle(message, 0)) {
        const std::string_view tag = tagXMLEle(one);
        const std::string name = attribute(one, "name");
        const std::string_view text(pcdataXMLEle(one), std::size_t(pcdatalenXMLEle(one)));
        if (tag == "defNumber" || (tag == "oneNumber" && property.numbers.count(name) != 0)) {
            IndiNumber &number = property.numbers[name];
            number.value = parseNumber(text).value_or(number.value);
            number.least = parseNumber(attribute(one, "min")).value_or(number.least);
            number.most = parseNumber(attribute(one, "max")).value_or(number.most);
        } else if (tag == "defSwitch" ||
                   (tag == "oneSwitch" && property.switches.count(name) != 0)) {
            property.switches[name] = trimmed(text) == "On";
        } else if (tag == "defText" || (tag == "oneText" && property.texts.count(name) != 0)) {
            property.texts[name] = trimmed(text);
        }
    }
}

void IndiValues::remove(const std::string &owner, const std::string &name)
{
    if (name.empty()) {
        removeName(names, owner);
        removeName(imaging, owner);
    }
    if (owner != device)
        return;
    const bool isNeeded = std::find(std::begin(needed), std::end(needed), name) != std::end(needed);
    if (name.empty()) {
        removals += properties.empty() ? 0 : 1;
        properties.clear();
    } else if (properties.erase(name) != 0 && isNeeded) {
        ++removals;
    }
}
} // namespace framesources
