// SPDX-License-Identifier: MIT
// Which files does a pattern name, and in which order were they taken?
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace framesources
{
struct ListedFile {
    std::string path;
    double date = 0.0;        ///< when it was taken, else when it was last changed; UTC since 1970
    std::int64_t changed = 0; ///< of the file, nanoseconds since 1970
    std::int64_t bytes = 0;

    bool operator==(const ListedFile &other) const;
};

/// All ordinary files of a pattern (* ? [ ]), those of a folder that have a picture's suffix, or
/// the one file, by name. Only `path`, `changed` and `bytes` are set. Files that were changed
/// within the last 0.3 seconds may still be being written: they are left out.
std::vector<ListedFile> matchingFiles(const std::string &pattern);

/// Sets `date`: the picture's own, else that of the file's last change.
void setDate(ListedFile &file);

/// Oldest first; of one date, by name.
void sortByDate(std::vector<ListedFile> &files);
} // namespace framesources
