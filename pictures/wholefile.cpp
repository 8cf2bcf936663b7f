// SPDX-License-Identifier: MIT
// A file without a name or with a temporary one in the same folder, then its name.
#include "pictures/wholefile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace pictures
{
namespace
{
constexpr char openFiles[] = "/proc/self/fd/"; // by which a file gets a name
constexpr mode_t newMode = 0666;               // but for the process' mask

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

/// A file beside another. It has no name where the file system has such files: then nothing of it
/// is left if the process is killed.
struct FileBeside {
    FileBeside(const std::filesystem::path &file, bool isUnnamed)
        : folder(file.has_parent_path() ? file.parent_path() : "."),
          descriptor(isUnnamed && ::access(openFiles, X_OK) == 0
                         ? ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, newMode)
                         : -1)
    {
        if (descriptor >= 0)
            return;
        name = underFreeName(folder, [this](const char *free) {
            descriptor = ::open(free, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, newMode);
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

/// @param earlier  the file that is replaced; none: null
bool replace(const std::filesystem::path &file, const struct stat *earlier, std::string_view bytes,
             bool isUnnamed)
{
    FileBeside beside(file, isUnnamed);
    if (beside.descriptor < 0)
        return false;
    if (earlier) { // a refusal of its owner or mode is no failure
        const int owned = ::fchown(beside.descriptor, earlier->st_uid, earlier->st_gid);
        const int allowed = ::fchmod(beside.descriptor, earlier->st_mode & 0777);
        static_cast<void>(owned + allowed);
    }
    return writeAll(beside.descriptor, bytes) && beside.rename(file);
}

/// Into a pipe or a device, which no other file can replace.
bool writeInto(const std::string &name, std::string_view bytes)
{
    const int descriptor = ::open(name.c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isWritten = writeAll(descriptor, bytes);
    const int error = errno;
    const bool isClosed = ::close(descriptor) == 0;
    if (!isWritten)
        errno = error;
    return isWritten && isClosed;
}

bool write(const std::string &name, std::string_view bytes)
{
    struct stat status = {};
    const bool isThere = ::stat(name.c_str(), &status) == 0;
    if (isThere && !S_ISREG(status.st_mode))
        return writeInto(name, bytes);
    if (isThere && ::access(name.c_str(), W_OK) != 0)
        return false; // its folder may permit more than the file does
    std::error_code isNew;
    std::filesystem::path file = std::filesystem::canonical(name, isNew);
    if (isNew)
        file = name;
    const struct stat *const earlier = isThere ? &status : nullptr;
    // Where a file without a name cannot get one, it has one from the start.
    return replace(file, earlier, bytes, true) || replace(file, earlier, bytes, false);
}
} // namespace

std::string writeWhole(const std::string &name, std::string_view bytes)
{
    if (write(name, bytes))
        return {};
    return std::string("it cannot be written: ") + std::strerror(errno);
}
} // namespace pictures
