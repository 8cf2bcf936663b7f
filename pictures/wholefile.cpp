// SPDX-License-Identifier: MIT
// Files are replaced; pipes and devices are written into.
#include "pictures/wholefile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "files/wholefile.h"

namespace pictures
{
namespace
{
bool writeInto(const std::string &name, std::string_view bytes)
{
    const int descriptor = ::open(name.c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isWritten = files::writeAll(descriptor, bytes);
    const int error = errno;
    const bool isClosed = ::close(descriptor) == 0;
    if (!isWritten)
        errno = error;
    return isWritten && isClosed;
}

bool write(const std::string &name, std::string_view bytes)
{
    constexpr mode_t newMode = 0666;
    struct stat status = {};
    const bool isThere = ::stat(name.c_str(), &status) == 0;
    if (isThere && !S_ISREG(status.st_mode))
        return writeInto(name, bytes);
    if (isThere && ::access(name.c_str(), W_OK) != 0)
        return false; // its folder may permit more than the file does
    std::error_code isNew;
    const std::filesystem::path target = std::filesystem::canonical(name, isNew);
    return files::replaceFile(isNew ? name : target.string(), bytes, newMode);
}
} // namespace

std::string writeWhole(const std::string &name, std::string_view bytes)
{
    if (write(name, bytes))
        return {};
    return std::string("it cannot be written: ") + std::strerror(errno);
}
} // namespace pictures
