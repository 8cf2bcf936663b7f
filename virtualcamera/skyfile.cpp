// SPDX-License-Identifier: MIT
// Parses and formats the sky file's text, line by line.
#include "virtualcamera/skyfile.h"

#include <algorithm>
#include <set>

#include "virtualcamera/skykeys.h"
#include "virtualcamera/text.h"

namespace virtualsky
{
namespace
{
/// As in the camera's log, where sentences about values are cut like other texts of the file.
std::string sentence(const SkyFault &fault)
{
    const std::string text = englishSentence(fault);
    return isOfAValue(fault.code) ? printable(text) : text;
}

class Parser
{
public:
    void takeLine(std::string_view text)
    {
        ++line;
        text = trimmed(text.substr(0, text.find_first_of("#;")));
        if (text.empty())
            return;
        if (text.front() == '[')
            takeSection(text);
        else
            takeKey(text);
    }

    int line = 0;
    SkyState state;

private:
    void takeSection(std::string_view text)
    {
        if (text.back() != ']')
            throw SkyFileError(line, {}, {SkyFaultCode::OpenSection});
        section = trimmed(text.substr(1, text.size() - 2));
        const auto &keys = skyKeys();
        const bool known = std::any_of(
            keys.begin(), keys.end(), [this](const SkyKey &key) { return key.section == section; });
        if (!known)
            throw SkyFileError(line, {}, {SkyFaultCode::UnknownSection, {section}});
    }

    void takeKey(std::string_view text)
    {
        const std::size_t equals = text.find('=');
        if (equals == std::string_view::npos)
            throw SkyFileError(line, printable(text), {SkyFaultCode::NoAssignment});
        const std::string_view name = trimmed(text.substr(0, equals));
        const auto &keys = skyKeys();
        const auto key = std::find_if(keys.begin(), keys.end(), [this, name](const SkyKey &k) {
            return k.section == section && k.name == name;
        });
        if (key == keys.end())
            throw SkyFileError(line, printable(name),
                               section.empty() ? SkyFault(SkyFaultCode::KeyBeforeSections)
                                               : SkyFault(SkyFaultCode::UnknownKey, {section}));
        if (!seen.insert(&*key).second)
            throw SkyFileError(line, printable(name), {SkyFaultCode::DuplicateKey});
        if (const auto fault = setKey(state, *key, trimmed(text.substr(equals + 1))))
            throw SkyFileError(line, printable(name), *fault);
    }

    std::string_view section;
    std::set<const SkyKey *> seen;
};
} // namespace

SkyFileError::SkyFileError(int lineNumber, std::string keyName, SkyFault skyFault)
    : std::runtime_error((lineNumber > 0 ? "line " + std::to_string(lineNumber) + ": " : "") +
                         (keyName.empty() ? "" : keyName + ": ") + sentence(skyFault)),
      badLine(lineNumber),
      badKey(std::move(keyName)),
      reason(std::move(skyFault))
{
}

SkyState parse(std::string_view text)
{
    if (text.empty())
        throw SkyFileError(0, {}, {SkyFaultCode::Empty});
    Parser parser;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos)
            throw SkyFileError(parser.line + 1, {}, {SkyFaultCode::HalfWritten});
        parser.takeLine(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return parser.state;
}

std::string format(const SkyState &state)
{
    std::string text;
    std::string_view section;
    for (const SkyKey &key : skyKeys()) {
        if (key.section != section) {
            text += (section.empty() ? "[" : "\n[") + std::string(key.section) + "]\n";
            section = key.section;
        }
        const std::string value = keyText(state, key);
        text += std::string(key.name) + (value.empty() ? " =" : " = ") + value + '\n';
    }
    return text;
}
} // namespace virtualsky
