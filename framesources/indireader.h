// SPDX-License-Identifier: MIT
// Which messages are in the bytes that come from an INDI server?
#pragma once

#include <functional>
#include <libindi/lilxml.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace framesources
{
/// INDI's own parser, with the text of BLOBs kept apart: it would take that one character at a
/// time, or trust the length that the sender says. Bytes are not trusted; what is no XML is
/// skipped.
class IndiReader
{
public:
    /// @param blobs the texts of the message's BLOBs, in their order; they may be taken
    using Take = std::function<void(XMLEle *message, std::vector<std::string> &blobs)>;

    IndiReader();

    /// False: a message is longer than any camera's, and no more can be read.
    bool read(std::string_view bytes, const Take &take);

private:
    bool readMarkup(char c, const Take &take);
    void follow(char c);
    void beginMessage();

    const std::unique_ptr<LilXML, decltype(&delLilXML)> parser;
    std::vector<char> fault;    // as long as what the parser writes into it could be
    std::size_t length = 0;     // of the message so far, bytes without its BLOBs
    std::size_t textLength = 0; // of its BLOBs so far
    bool inTag = false;
    char quote = 0;   // that an attribute's value ends with; 0 = not in one
    std::string name; // of the tag, as far as it matters
    char last = 0;    // of the tag
    bool inBlob = false;
    std::vector<std::string> blobs;
};
} // namespace framesources
