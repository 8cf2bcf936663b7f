// SPDX-License-Identifier: MIT
// Edits a sky file's text line by line.
#include "cameracommand/skyvalues.h"

#include <string_view>

#include "virtualcamera/text.h"

std::string withSkyValue(const std::string &text, const std::string &section,
                         const std::string &key, const std::string &value)
{
    const std::string line = key + " = " + value + '\n';
    std::string out, current;
    std::size_t insertion = std::string::npos; // behind the section's line
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
        const std::string_view whole = std::string_view(text).substr(at, end - at);
        std::string_view plain = whole.substr(0, whole.find_first_of("#;\n"));
        plain = virtualsky::trimmed(plain);
        at = end;
        if (plain.size() > 1 && plain.front() == '[' && plain.back() == ']')
            current = virtualsky::trimmed(plain.substr(1, plain.size() - 2));
        const std::string_view name = virtualsky::trimmed(plain.substr(0, plain.find('=')));
        if (current == section && name == key && plain.find('=') != std::string_view::npos)
            return out + line + text.substr(at);
        out += whole;
        if (current == section && insertion == std::string::npos)
            insertion = out.size();
    }
    if (insertion != std::string::npos)
        return out.insert(insertion, line);
    return out + '[' + section + "]\n" + line;
}
