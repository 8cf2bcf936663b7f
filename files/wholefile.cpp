// SPDX-License-Identifier: MIT
// A file without a name or with a temporary one in the same folder, then its name.
#include "files/wholefile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace files
{
namespace
{
constexpr char openFiles[] = "/proc/self/fd/"; // by which a file gets a name

/// A short name, since the other one may be as long as a name can be; of no picture's suffix.
std::string temporaryName(const std::filesystem::path &folder, int number)
{
    const std::string begin = ".quorvandel-" + std::to_string(::getpid()) + '-';
    return (folder / (begin + std::to_string(number) + ".part")).string();
}

/// Calls `create` with temporary names until one is free. @return the name; empty: errno says why
template <typename Create>
std::string underFreeName(const std::filesystem::path &folder, const Create &create)
{
    constexpr int tries = 100; // left by other processes of this number
    for (int i = 0; i < tries; ++i) {
        const std::string name = temporaryName(folder, i);
        if (create(name.c_str()))
            return name;
        if (errno != EEXIST)
            break;
    }
    return {};
}

/// A file beside another. It has no name where the file system has such files: then nothing of it
/// is left if the process is killed.
struct FileBeside {
    FileBeside(const std::filesystem::path &file, mode_t mode, bool isUnnamed)
        : folder(file.has_parent_path() ? file.parent_path() : "."),
          descriptor(isUnnamed && ::access(openFiles, X_OK) == 0
                         ? ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode)
                         : -1)
    {
        if (descriptor >= 0)
            return;
        name = underFreeName(folder, [this, mode](const char *free) {
            descriptor = ::open(free, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            return descriptor >= 0;
        });
    }
    ~FileBeside()
    {
        const int before = errno;
        if (descriptor >= 0)
            ::close(descriptor);
        if (!name.empty())
            ::unlink(name.c_str());
        errno = before;
    }
    FileBeside(const FileBeside &) = delete;
    FileBeside &operator=(const FileBeside &) = delete;

    /// Replaces `file`.
    bool rename(const std::filesystem::path &file)
    {
        const std::string own = openFiles + std::to_string(descriptor);
        const auto link = [&own](const char *free) {
            return ::linkat(AT_FDCWD, own.c_str(), AT_FDCWD, free, AT_SYMLINK_FOLLOW) == 0;
        };
        if (!isStored())
            return false;
        if (name.empty() && link(file.c_str())) // there is no such file
            return true;
        if (name.empty())
            name = underFreeName(folder, link);
        if (name.empty() || std::rename(name.c_str(), file.c_str()) != 0)
            return false;
        name.clear();
        return true;
    }

    /// Some file systems report only as a file is closed what they could not write.
    bool isStored() const
    {
        const int copy = ::dup(descriptor);
        return copy >= 0 && ::close(copy) == 0;
    }

    const std::filesystem::path folder;
    int descriptor;
    std::string name; // temporary; empty: it has none
};

bool replace(const std::string &path, std::string_view bytes, mode_t newMode, bool isUnnamed)
{
    FileBeside beside(path, newMode, isUnnamed);
    if (beside.descriptor < 0)
        return false;
    struct stat earlier = {};
    if (::stat(path.c_str(), &earlier) == 0) { // a refusal of its owner or mode is no failure
        const int owned = ::fchown(beside.descriptor, earlier.st_uid, earlier.st_gid);
        const int allowed = ::fchmod(beside.descriptor, earlier.st_mode & 07777);
        static_cast<void>(owned + allowed);
    }
    return writeAll(beside.descriptor, bytes) && beside.rename(path);
}
} // namespace

bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            return false;
        bytes.remove_prefix(written > 0 ? std::size_t(written) : 0);
    }
    return true;
}

bool replaceFile(const std::string &path, std::string_view bytes, mode_t newMode)
{
    // Where a file without a name cannot get one, it has one from the start.
    return replace(path, bytes, newMode, true) || replace(path, bytes, newMode, false);
}
} // namespace files
