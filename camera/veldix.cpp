// SPDX-License-Identifier: MIT
// Loads the camera maker's library at run time and forwards the sixteen operations to it.
#include "camera/veldix.h"

#include "camera/loaderfolders.h"
#include "camera/loadprobe.h"
#include "core/relaxed.h"
#include "virtualcamera/cameraaddress.h"

#include <QCoreApplication>
#include <QDir>
#include <QtDebug>
#include <algorithm>
#include <array>
#include <cxxabi.h>
#include <dlfcn.h>
#include <exception>

namespace
{
/// The library's function to which one of the program's functions forwards; null until the library
/// is loaded. Written once by InitVELDIXResource, before the capture thread starts; then only read.
template <auto *operation> decltype(operation) function = nullptr;
bool loaded = false;
QString fault; ///< why no library is loaded

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

/// Resolves all functions or none; logs each missing one.
bool resolveAll(void *library, const QString &libraryName)
{
    std::array<void *, symbols.size()> addresses{};
    bool complete = true;
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        addresses[i] = dlsym(library, symbols[i].name);
        if (addresses[i])
            continue;
        fault = QStringLiteral("%1 lacks the function %2").arg(libraryName, symbols[i].name);
        qCritical("%s lacks the function %s", qPrintable(libraryName), symbols[i].name);
        complete = false;
    }
    for (std::size_t i = 0; complete && i < symbols.size(); ++i)
        symbols[i].set(addresses[i]);
    return complete;
}

template <auto *operation> const char *nameOf()
{
    return std::find_if(symbols.begin(), symbols.end(),
                        [](const Symbol &s) { return s.set == set<operation>; })
        ->name;
}

/// Null until somebody observes the calls. Written before any thread starts; then only read.
void (*callObserver)(const char *operation) = nullptr;

/// One call into the library.
template <auto *operation> class Observed
{
public:
    Observed()
    {
        if (callObserver)
            callObserver(nameOf<operation>());
    }
    ~Observed()
    {
        if (callObserver)
            callObserver(nullptr);
    }
    Observed(const Observed &) = delete;
    Observed &operator=(const Observed &) = delete;
};

/// Whether the operation's latest call threw: a camera that throws for every frame fills no log.
template <auto *operation> Relaxed<bool> threw;

template <auto *operation> void logThrown(const char *what)
{
    if (threw<operation>)
        return;
    threw<operation> = true;
    qCritical("%s threw an exception: %s", nameOf<operation>(), what ? what : "");
}

/// The result of the library's function; `failed` if no library is loaded or the function throws.
template <auto *operation, typename Result, typename... Arguments>
Result call(Result failed, Arguments... arguments)
{
    if (!function<operation>)
        return failed;
    try {
        const Observed<operation> observed;
        const Result result = function<operation>(arguments...);
        threw<operation> = false;
        return result;
    } catch (const std::exception &exception) {
        logThrown<operation>(exception.what());
    } catch (const abi::__forced_unwind &) { // the thread is being cancelled
        throw;
    } catch (...) {
        logThrown<operation>("not a std::exception");
    }
    return failed;
}

/// The loader's message about its last failure.
QString loadFailure()
{
    return QString::fromLocal8Bit(dlerror());
}

/// Whether `reason` is the loader's message for a missing file. Compares it with the message for a
/// file that is certainly missing, since the loader's messages are translated.
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

/// The files that exist under a name that the loader failed to load; empty = none. The loader
/// silently skips files that are built for another processor or not readable.
QByteArrayList whatIsThere(const QByteArray &file, const QString &reason)
{
    const QByteArrayList found = filesOfName(
        file, loaderFolders() + configuredFolders(QByteArrayLiteral("/etc/ld.so.conf")));
    if (found.isEmpty() && !saysAbsent(reason, file))
        return {file};
    return found;
}

enum class Outcome {
    Absent,     ///< no file exists
    Unusable,   ///< a file exists, but loading it fails or harms the program
    Incomplete, ///< it loads, but is a different library or version
    Loaded,
};

void logUnusable(const QByteArray &files, const QString &reason)
{
    fault = QFile::decodeName(files) + QStringLiteral(": ") + reason;
    qCritical("%s is there and cannot be used: %s; no other camera library is tried",
              files.constData(), qPrintable(reason));
}

/// Whether the loader may find a file: it searches its folders for a name without a path.
bool mayExist(const QString &name)
{
    return !name.contains('/') || QFile::exists(name);
}

/// Loads one library, which then stays loaded.
/// @param reason receives why it was not loaded
Outcome loadFrom(const QString &name, QString &reason)
{
    const QByteArray file = QFile::encodeName(name);
    if (mayExist(name) && !canLoadSafely(file)) {
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

/// Loads the first library that exists. A user who has the maker's library does not want to see
/// pictures from another one, unless the shipped library's camera was asked for.
Outcome load()
{
    QStringList reasons;
    const bool shippedAlone = !qEnvironmentVariableIsEmpty(virtualsky::cameraVariable);
    QStringList names = librariesToTry(QCoreApplication::applicationDirPath());
    if (shippedAlone)
        names.removeFirst();
    for (const QString &name : names) {
        QString reason;
        const Outcome outcome = loadFrom(name, reason);
        if (outcome != Outcome::Absent)
            return outcome;
        reasons.append(reason);
    }
    fault = reasons.join(QStringLiteral("; "));
    qCritical("the camera library cannot be loaded: %s", qPrintable(fault));
    return Outcome::Absent;
}
} // namespace

QStringList librariesToTry(const QString &applicationFolder)
{
    const QString soname = QLatin1String(makersLibrary);
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
    return call<InitVELDIXResource>(veldixError);
}

void observeCalls(void (*observer)(const char *operation))
{
    callObserver = observer;
}

QString libraryFault()
{
    return loaded ? QString() : fault;
}

std::int32_t ScanVELDIX()
{
    return call<ScanVELDIX>(std::int32_t(0));
}

std::uint32_t GetVELDIXId(std::int32_t index, char *id)
{
    return call<GetVELDIXId>(veldixError, index, id);
}

void *OpenVELDIX(const char *id)
{
    return call<OpenVELDIX>(static_cast<void *>(nullptr), id);
}

std::uint32_t SetVELDIXReadMode(void *handle, std::uint32_t mode)
{
    return call<SetVELDIXReadMode>(veldixError, handle, mode);
}

std::uint32_t SetVELDIXStreamMode(void *handle, std::uint8_t mode)
{
    return call<SetVELDIXStreamMode>(veldixError, handle, mode);
}

std::uint32_t InitVELDIX(void *handle)
{
    return call<InitVELDIX>(veldixError, handle);
}

std::uint32_t SetVELDIXBitsMode(void *handle, std::uint32_t bits)
{
    return call<SetVELDIXBitsMode>(veldixError, handle, bits);
}

std::uint32_t SetVELDIXBinMode(void *handle, std::uint32_t x, std::uint32_t y)
{
    return call<SetVELDIXBinMode>(veldixError, handle, x, y);
}

std::uint32_t SetVELDIXResolution(void *handle, std::uint32_t x, std::uint32_t y,
                                  std::uint32_t width, std::uint32_t height)
{
    return call<SetVELDIXResolution>(veldixError, handle, x, y, width, height);
}

double GetVELDIXParam(void *handle, std::int32_t control)
{
    return call<GetVELDIXParam>(0.0, handle, control);
}

std::uint32_t SetVELDIXParam(void *handle, std::int32_t control, double value)
{
    return call<SetVELDIXParam>(veldixError, handle, control, value);
}

std::uint32_t BeginVELDIXLive(void *handle)
{
    return call<BeginVELDIXLive>(veldixError, handle);
}

std::uint32_t GetVELDIXLiveFrame(void *handle, std::uint32_t *width, std::uint32_t *height,
                                 std::uint32_t *bpp, std::uint32_t *channels, std::uint8_t *buffer)
{
    return call<GetVELDIXLiveFrame>(veldixError, handle, width, height, bpp, channels, buffer);
}

std::uint32_t StopVELDIXLive(void *handle)
{
    return call<StopVELDIXLive>(veldixError, handle);
}

std::uint32_t CloseVELDIX(void *handle)
{
    return call<CloseVELDIX>(veldixError, handle);
}
