// SPDX-License-Identifier: MIT
// Patterns, folders and dates of files.
#include "framesources/filelist.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <glob.h>
#include <optional>
#include <sys/stat.h>
#include <tuple>

#include "framesources/filedate.h"

namespace framesources
{
namespace
{
constexpr std::array<const char *, 9> suffixes = {"png", "jpg",  "jpeg", "tif", "tiff",
                                                  "fit", "fits", "fts",  "ser"};
constexpr std::int64_t second = 1000000000; // nanoseconds

bool isPictureName(const std::string &path)
{
    std::string suffix = path.substr(std::min(path.rfind('.') + 1, path.size()));
    for (char &c : suffix)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return std::find(suffixes.begin(), suffixes.end(), suffix) != suffixes.end();
}

bool isFolder(const std::string &path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::int64_t now()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

std::optional<ListedFile> listed(const std::string &path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    ListedFile file;
    file.path = path;
    file.changed = status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec;
    file.bytes = status.st_size;
    const std::int64_t age = now() - file.changed;
    return age >= 0 && age < second * 3 / 10 ? std::nullopt : std::optional<ListedFile>(file);
}

std::vector<std::string> expanded(const std::string &pattern)
{
    std::vector<std::string> names;
    glob_t found = {};
    if (::glob(pattern.c_str(), GLOB_NOSORT, nullptr, &found) == 0)
        names.assign(found.gl_pathv, found.gl_pathv + found.gl_pathc);
    ::globfree(&found);
    return names;
}

// A folder's name as a pattern of itself.
std::string globEscaped(const std::string &path)
{
    std::string text;
    for (const char c : path)
        text += std::string("*?[]\\").find(c) == std::string::npos ? std::string(1, c)
                                                                   : std::string("\\") + c;
    return text;
}
} // namespace

bool ListedFile::operator==(const ListedFile &o) const
{
    return std::tie(path, changed, bytes) == std::tie(o.path, o.changed, o.bytes);
}

std::vector<ListedFile> matchingFiles(const std::string &pattern)
{
    std::vector<ListedFile> files;
    if (auto one = listed(pattern))
        return {*one};
    const bool folder = isFolder(pattern);
    for (const std::string &path : expanded(folder ? globEscaped(pattern) + "/*" : pattern))
        if (!folder || isPictureName(path))
            if (auto file = listed(path))
                files.push_back(std::move(*file));
    std::sort(files.begin(), files.end(),
              [](const ListedFile &a, const ListedFile &b) { return a.path < b.path; });
    return files;
}

void setDate(ListedFile &file)
{
    file.date = dateInFile(file.path).value_or(double(file.changed) / double(second));
}

void sortByDate(std::vector<ListedFile> &files)
{
    std::sort(files.begin(), files.end(), [](const ListedFile &a, const ListedFile &b) {
        return std::tie(a.date, a.path) < std::tie(b.date, b.path);
    });
}
} // namespace framesources
