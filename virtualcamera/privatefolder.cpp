// SPDX-License-Identifier: MIT
// Checks owner, kind and mode of a folder, and makes one.
#include "virtualcamera/privatefolder.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

namespace virtualsky
{
namespace
{
bool isPrivate(const std::string &path)
{
    struct stat found = {};
    return ::lstat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == ::geteuid() && (found.st_mode & 0777) == 0700;
}

std::vector<std::string> namesIn(const std::string &folder)
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(::opendir(folder.c_str()), ::closedir);
    while (const dirent *const entry = entries ? ::readdir(entries.get()) : nullptr)
        names.emplace_back(entry->d_name);
    std::sort(names.begin(), names.end());
    return names;
}
} // namespace

std::string privateFolder(const std::string &parent, const std::string &name)
{
    const std::string usual = parent + '/' + name;
    ::mkdir(usual.c_str(), 0700);
    if (isPrivate(usual))
        return usual;
    // The camera and the mount, two processes, must find the same one.
    const std::string prefix = name + '-';
    constexpr std::size_t randomLetters = 6;
    for (const std::string &other : namesIn(parent))
        if (other.size() == prefix.size() + randomLetters && other.rfind(prefix, 0) == 0 &&
            isPrivate(parent + '/' + other))
            return parent + '/' + other;
    std::string fresh = parent + '/' + prefix + "XXXXXX";
    return ::mkdtemp(fresh.data()) ? fresh : std::string();
}
} // namespace virtualsky
