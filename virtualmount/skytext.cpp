// SPDX-License-Identifier: MIT
// Changes individual keys in the text of a sky file.
#include "virtualmount/skytext.h"

#include "virtualcamera/skykeys.h"
#include "virtualcamera/text.h"

#include <algorithm>
#include <vector>

namespace virtualmount
{
namespace
{
using virtualsky::SkyKey;
using virtualsky::trimmed;

class Lines
{
public:
    explicit Lines(std::string_view text)
    {
        for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n')) {
            lines.emplace_back(text.substr(0, end));
            text.remove_prefix(end + 1);
        }
    }

    void set(const SkyKey &key, const std::string &value)
    {
        const std::string assignment = std::string(key.name) + (value.empty() ? " =" : " = ");
        const KeyLocation found = find(key);
        if (found.isThere) {
            std::string &line = lines[found.line];
            line = assignment + value + commentOf(line);
            return;
        }
        const auto at = lines.begin() + static_cast<std::ptrdiff_t>(found.line);
        if (found.hasSection)
            lines.insert(at, assignment + value);
        else
            lines.insert(at, {'[' + std::string(key.section) + ']', assignment + value});
    }

    std::string text() const
    {
        std::string all;
        for (const std::string &line : lines)
            all += line + '\n';
        return all;
    }

private:
    struct KeyLocation {
        std::size_t line; // of the key, or where to insert it
        bool isThere = false;
        bool hasSection = false;
    };

    static std::string_view withoutComment(std::string_view line)
    {
        return trimmed(line.substr(0, line.find_first_of("#;")));
    }

    static std::string commentOf(std::string_view line)
    {
        const std::size_t at = line.find_first_of("#;");
        return at == line.npos ? std::string() : "  " + std::string(line.substr(at));
    }

    KeyLocation find(const SkyKey &key) const
    {
        KeyLocation location = {lines.size()};
        std::string_view section;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const std::string_view line = withoutComment(lines[i]);
            if (line.empty())
                continue;
            if (line.front() == '[')
                section = trimmed(line.substr(1, line.size() - 2));
            if (section != key.section)
                continue;
            location = {i + 1, false, true};
            if (trimmed(line.substr(0, line.find('='))) == key.name)
                return {i, true, true};
        }
        return location;
    }

    std::vector<std::string> lines;
};
} // namespace

std::string withChanges(std::string_view text, const virtualsky::SkyState &before,
                        const virtualsky::SkyState &after)
{
    Lines lines(text);
    for (const SkyKey &key : virtualsky::skyKeys()) {
        const std::string value = keyText(after, key);
        if (value != keyText(before, key))
            lines.set(key, value);
    }
    return lines.text();
}
} // namespace virtualmount
