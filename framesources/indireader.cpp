// SPDX-License-Identifier: MIT
// Feeds INDI's parser.
#include "framesources/indireader.h"

#include <algorithm>

namespace framesources
{
namespace
{
constexpr std::size_t maxMarkup = std::size_t(1) << 18; // bytes; the parser frees by recursion
constexpr std::size_t maxText = std::size_t(3) << 27;   // 64 megapixels of 16 bits are less
constexpr std::size_t maxBlobs = 8;                     // of a message; a camera's has one
constexpr std::string_view blobTag = "oneBLOB";

bool isSpace(char c)
{
    return c == ' ' || c == '\n' || c == '\t' || c == '\r';
}
} // namespace

// The parser's complaint may quote two names.
IndiReader::IndiReader() : parser(newLilXML(), &delLilXML), fault(2 * maxMarkup + 256) {}

void IndiReader::beginMessage()
{
    length = textLength = 0;
    inTag = inBlob = false;
    quote = last = 0;
    blobs.clear();
}

bool IndiReader::read(std::string_view bytes, const Take &take)
{
    while (!bytes.empty()) {
        if (!inBlob) {
            if (!readMarkup(bytes.front(), take))
                return false;
            bytes.remove_prefix(1);
            continue;
        }
        const std::size_t end = std::min(bytes.find('<'), bytes.size());
        blobs.back().append(bytes.substr(0, end));
        textLength += end;
        if (textLength > maxText || blobs.size() > maxBlobs)
            return false;
        bytes.remove_prefix(end);
        inBlob = bytes.empty();
    }
    return true;
}

bool IndiReader::readMarkup(char c, const Take &take)
{
    if (++length > maxMarkup)
        return false;
    follow(c);
    const std::unique_ptr<XMLEle, decltype(&delXMLEle)> message(
        readXMLEle(parser.get(), static_cast<unsigned char>(c), fault.data()), &delXMLEle);
    if (message)
        take(message.get(), blobs);
    // After a complaint the parser begins again, too.
    if (message || fault.front() != '\0')
        beginMessage();
    return true;
}

/// Notices where the text of a BLOB begins.
void IndiReader::follow(char c)
{
    if (!inTag || (quote == 0 && c == '<')) {
        inTag = c == '<';
        quote = last = 0;
        name.clear();
        return;
    }
    if (quote != 0) {
        quote = c == quote ? 0 : quote;
    } else if (c == '"' || c == '\'') {
        quote = c;
    } else if (c == '>') {
        inTag = false;
        const bool isBlob = name.compare(0, blobTag.size(), blobTag) == 0 &&
                            (name.size() == blobTag.size() || isSpace(name[blobTag.size()]));
        if (isBlob && last != '/') {
            inBlob = true;
            blobs.emplace_back();
        }
    }
    if (name.size() <= blobTag.size())
        name += c;
    last = c;
}
} // namespace framesources
