// SPDX-License-Identifier: MIT
// Finds the camera maker's library at run time and passes the sixteen operations on to it.
#include "camera/veldix.h"

#include "camera/loaderfolders.h"
#include "camera/loadprobe.h"

#include <QCoreApplication>
#include <QDir>
#include <QtDebug>
#include <array>
#include <dlfcn.h>
#include <type_traits>

namespace
{
/// The library's function behind one of the program's; null until the library is loaded. Written
/// once by InitVELDIXResource, before the capture thread starts; read by all afterwards.
template <auto *operation> decltype(operation) function = nullptr;
bool loaded = false;

template <auto *operation> void set(void *address)
{
    function<operation> = reinterpret_cast<decltype(operation)>(address);
}

struct Symbol {
    const char *name;
    void (*set)(void *address);
};

// clang-format off
constexpr std::array<Symbol, 16> symbols{{
    {"InitVELDIXResource", set<InitVELDIXResource>},
    {"ScanVELDIX", set<ScanVELDIX>},
    {"GetVELDIXId", set<GetVELDIXId>},
    {"OpenVELDIX", set<OpenVELDIX>},
    {"SetVELDIXReadMode", set<SetVELDIXReadMode>},
    {"SetVELDIXStreamMode", set<SetVELDIXStreamMode>},
    {"InitVELDIX", set<InitVELDIX>},
    {"SetVELDIXBitsMode", set<SetVELDIXBitsMode>},
    {"SetVELDIXBinMode", set<SetVELDIXBinMode>},
    {"SetVELDIXResolution", set<SetVELDIXResolution>},
    {"GetVELDIXParam", set<GetVELDIXParam>},
    {"SetVELDIXParam", set<SetVELDIXParam>},
    {"BeginVELDIXLive", set<BeginVELDIXLive>},
    {"GetVELDIXLiveFrame", set<GetVELDIXLiveFrame>},
    {"StopVELDIXLive", set<StopVELDIXLive>},
    {"CloseVELDIX", set<CloseVELDIX>},
}};
// clang-format on

/// All of the functions or none; each that is missing is logged.
bool resolveAll(void *library, const QString &libraryName)
{
    std::array<void *, symbols.size()> addresses{};
    bool complete = true;
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        addresses[i] = dlsym(library, symbols[i].name);
        if (addresses[i])
            continue;
        qCritical("%s lacks the function %s", qPrintable(libraryName), symbols[i].name);
        complete = false;
    }
    for (std::size_t i = 0; complete && i < symbols.size(); ++i)
        symbols[i].set(addresses[i]);
    return complete;
}

/// What the library's function gives, or `failed` while there is none.
template <typename Result, typename... Parameters>
Result call(Result (*called)(Parameters...), std::common_type_t<Result> failed,
            std::common_type_t<Parameters>... parameters)
{
    return called ? called(parameters...) : failed;
}

/// Why the loader did not load `file`, in its own words.
QString loadFailure()
{
    return QString::fromLocal8Bit(dlerror());
}

/// Whether `reason` says no more of `file` than of any other that is not there, in whatever
/// language the loader speaks.
bool saysAbsent(const QString &reason, const QByteArray &file)
{
    const QByteArray absent = file + ".absent";
    if (void *const handle = dlopen(absent.constData(), RTLD_NOW | RTLD_LOCAL)) {
        dlclose(handle);
        return false;
    }
    return loadFailure() ==
           QString(reason).replace(QFile::decodeName(file), QFile::decodeName(absent));
}

/// What there is under a name that the loader does not load; empty = nothing at all. The loader
/// passes over files that are for another processor or that may not be read, as if there were none.
QByteArrayList whatIsThere(const QByteArray &file, const QString &reason)
{
    const QByteArrayList found = filesOfName(
        file, loaderFolders() + configuredFolders(QByteArrayLiteral("/etc/ld.so.conf")));
    if (found.isEmpty() && !saysAbsent(reason, file))
        return {file};
    return found;
}

enum class Outcome {
    Absent,     ///< there is no file
    Unusable,   ///< there is one that does not load, or not without harm
    Incomplete, ///< it loads, and is not a library of this kind or version
    Loaded,
};

void logUnusable(const QByteArray &files, const QString &reason)
{
    qCritical("%s is there and can not be used: %s; no other camera library is tried",
              files.constData(), qPrintable(reason));
}

/// Loads one library, which then stays loaded. \param reason why it is not loaded
Outcome loadFrom(const QString &name, QString &reason)
{
    const QByteArray file = QFile::encodeName(name);
    if (!survivesLoading(file)) {
        logUnusable(file, QStringLiteral("it ends or holds up the program as it is loaded"));
        return Outcome::Unusable;
    }
    void *const handle = dlopen(file.constData(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        reason = loadFailure();
        const QByteArrayList there = whatIsThere(file, reason);
        if (there.isEmpty())
            return Outcome::Absent;
        logUnusable(there.join(", "), reason);
        return Outcome::Unusable;
    }
    if (resolveAll(handle, name))
        return Outcome::Loaded;
    dlclose(handle);
    return Outcome::Incomplete;
}

/// Loads the first library that is there: whoever has the maker's does not want to see another's
/// pictures in place of the camera's.
Outcome load()
{
    QStringList reasons;
    for (const QString &name : librariesToTry(QCoreApplication::applicationDirPath())) {
        QString reason;
        const Outcome outcome = loadFrom(name, reason);
        if (outcome != Outcome::Absent)
            return outcome;
        reasons.append(reason);
    }
    qCritical("the camera library can not be loaded: %s", qPrintable(reasons.join("; ")));
    return Outcome::Absent;
}
} // namespace

QStringList librariesToTry(const QString &applicationFolder)
{
    const QString soname = QStringLiteral("libveldix.so.20");
    QStringList names{soname};
    for (const char *libraryFolder : {"../lib", "../" QUORVANDEL_LIBDIR}) {
        const QString name =
            QDir::cleanPath(applicationFolder + '/' + libraryFolder + "/quorvandel/" + soname);
        if (!names.contains(name))
            names.append(name);
    }
    return names;
}

std::uint32_t InitVELDIXResource()
{
    if (!loaded) {
        const Outcome outcome = load();
        if (outcome == Outcome::Unusable)
            return 0;
        loaded = outcome == Outcome::Loaded;
    }
    return call(function<InitVELDIXResource>, veldixError);
}

std::int32_t ScanVELDIX()
{
    return call(function<ScanVELDIX>, 0);
}

std::uint32_t GetVELDIXId(std::int32_t index, char *id)
{
    return call(function<GetVELDIXId>, veldixError, index, id);
}

void *OpenVELDIX(const char *id)
{
    return call(function<OpenVELDIX>, nullptr, id);
}

std::uint32_t SetVELDIXReadMode(void *handle, std::uint32_t mode)
{
    return call(function<SetVELDIXReadMode>, veldixError, handle, mode);
}

std::uint32_t SetVELDIXStreamMode(void *handle, std::uint8_t mode)
{
    return call(function<SetVELDIXStreamMode>, veldixError, handle, mode);
}

std::uint32_t InitVELDIX(void *handle)
{
    return call(function<InitVELDIX>, veldixError, handle);
}

std::uint32_t SetVELDIXBitsMode(void *handle, std::uint32_t bits)
{
    return call(function<SetVELDIXBitsMode>, veldixError, handle, bits);
}

std::uint32_t SetVELDIXBinMode(void *handle, std::uint32_t x, std::uint32_t y)
{
    return call(function<SetVELDIXBinMode>, veldixError, handle, x, y);
}

std::uint32_t SetVELDIXResolution(void *handle, std::uint32_t x, std::uint32_t y,
                                  std::uint32_t width, std::uint32_t height)
{
    return call(function<SetVELDIXResolution>, veldixError, handle, x, y, width, height);
}

double GetVELDIXParam(void *handle, std::int32_t control)
{
    return call(function<GetVELDIXParam>, 0.0, handle, control);
}

std::uint32_t SetVELDIXParam(void *handle, std::int32_t control, double value)
{
    return call(function<SetVELDIXParam>, veldixError, handle, control, value);
}

std::uint32_t BeginVELDIXLive(void *handle)
{
    return call(function<BeginVELDIXLive>, veldixError, handle);
}

std::uint32_t GetVELDIXLiveFrame(void *handle, std::uint32_t *width, std::uint32_t *height,
                                 std::uint32_t *bpp, std::uint32_t *channels, std::uint8_t *buffer)
{
    return call(function<GetVELDIXLiveFrame>, veldixError, handle, width, height, bpp, channels,
                buffer);
}

std::uint32_t StopVELDIXLive(void *handle)
{
    return call(function<StopVELDIXLive>, veldixError, handle);
}

std::uint32_t CloseVELDIX(void *handle)
{
    return call(function<CloseVELDIX>, veldixError, handle);
}
