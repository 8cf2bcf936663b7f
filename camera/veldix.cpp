// SPDX-License-Identifier: MIT
// Finds the camera maker's library at run time and passes the sixteen operations on to it.
#include "camera/veldix.h"

#include "camera/loadprobe.h"

#include <QCoreApplication>
#include <QDir>
#include <QtDebug>
#include <dlfcn.h>

namespace
{
/// The library's functions by name; all are null until the library is loaded.
struct Functions {
    decltype(&::InitVELDIXResource) initResource = nullptr;
    decltype(&::ScanVELDIX) scan = nullptr;
    decltype(&::GetVELDIXId) getId = nullptr;
    decltype(&::OpenVELDIX) open = nullptr;
    decltype(&::SetVELDIXReadMode) setReadMode = nullptr;
    decltype(&::SetVELDIXStreamMode) setStreamMode = nullptr;
    decltype(&::InitVELDIX) init = nullptr;
    decltype(&::SetVELDIXBitsMode) setBitsMode = nullptr;
    decltype(&::SetVELDIXBinMode) setBinMode = nullptr;
    decltype(&::SetVELDIXResolution) setResolution = nullptr;
    decltype(&::GetVELDIXParam) getParam = nullptr;
    decltype(&::SetVELDIXParam) setParam = nullptr;
    decltype(&::BeginVELDIXLive) beginLive = nullptr;
    decltype(&::GetVELDIXLiveFrame) getLiveFrame = nullptr;
    decltype(&::StopVELDIXLive) stopLive = nullptr;
    decltype(&::CloseVELDIX) close = nullptr;
};

/// Written once by InitVELDIXResource, before any other thread exists; read by all afterwards.
Functions functions;
bool loaded = false;

struct Library {
    void *handle;
    QString name;
    bool complete; ///< no function was missing so far
};

template <typename Function> void resolve(Library &library, const char *symbol, Function &function)
{
    void *const address = dlsym(library.handle, symbol);
    if (!address) {
        qCritical("%s lacks the function %s", qPrintable(library.name), symbol);
        library.complete = false;
    }
    function = reinterpret_cast<Function>(address);
}

bool resolveAll(Library &library, Functions &f)
{
    resolve(library, "InitVELDIXResource", f.initResource);
    resolve(library, "ScanVELDIX", f.scan);
    resolve(library, "GetVELDIXId", f.getId);
    resolve(library, "OpenVELDIX", f.open);
    resolve(library, "SetVELDIXReadMode", f.setReadMode);
    resolve(library, "SetVELDIXStreamMode", f.setStreamMode);
    resolve(library, "InitVELDIX", f.init);
    resolve(library, "SetVELDIXBitsMode", f.setBitsMode);
    resolve(library, "SetVELDIXBinMode", f.setBinMode);
    resolve(library, "SetVELDIXResolution", f.setResolution);
    resolve(library, "GetVELDIXParam", f.getParam);
    resolve(library, "SetVELDIXParam", f.setParam);
    resolve(library, "BeginVELDIXLive", f.beginLive);
    resolve(library, "GetVELDIXLiveFrame", f.getLiveFrame);
    resolve(library, "StopVELDIXLive", f.stopLive);
    resolve(library, "CloseVELDIX", f.close);
    return library.complete;
}

/// Loads the first library that loads; its functions must be complete. The library stays loaded.
bool load()
{
    QStringList reasons;
    for (const QString &name : librariesToTry(QCoreApplication::applicationDirPath())) {
        const QByteArray file = QFile::encodeName(name);
        if (!survivesLoading(file)) {
            qCritical("%s is left out: it ends or holds up the program as it is loaded",
                      file.constData());
            continue;
        }
        void *const handle = dlopen(file.constData(), RTLD_NOW | RTLD_LOCAL);
        if (!handle) {
            reasons.append(QString::fromLocal8Bit(dlerror()));
            continue;
        }
        Library library{handle, name, true};
        Functions found;
        if (!resolveAll(library, found)) {
            dlclose(handle);
            return false;
        }
        functions = found;
        return true;
    }
    qCritical("the camera library can not be loaded: %s", qPrintable(reasons.join("; ")));
    return false;
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
    if (!loaded)
        loaded = load();
    return loaded ? functions.initResource() : veldixError;
}

std::int32_t ScanVELDIX()
{
    return functions.scan ? functions.scan() : 0;
}

std::uint32_t GetVELDIXId(std::int32_t index, char *id)
{
    return functions.getId ? functions.getId(index, id) : veldixError;
}

void *OpenVELDIX(const char *id)
{
    return functions.open ? functions.open(id) : nullptr;
}

std::uint32_t SetVELDIXReadMode(void *handle, std::uint32_t mode)
{
    return functions.setReadMode ? functions.setReadMode(handle, mode) : veldixError;
}

std::uint32_t SetVELDIXStreamMode(void *handle, std::uint8_t mode)
{
    return functions.setStreamMode ? functions.setStreamMode(handle, mode) : veldixError;
}

std::uint32_t InitVELDIX(void *handle)
{
    return functions.init ? functions.init(handle) : veldixError;
}

std::uint32_t SetVELDIXBitsMode(void *handle, std::uint32_t bits)
{
    return functions.setBitsMode ? functions.setBitsMode(handle, bits) : veldixError;
}

std::uint32_t SetVELDIXBinMode(void *handle, std::uint32_t x, std::uint32_t y)
{
    return functions.setBinMode ? functions.setBinMode(handle, x, y) : veldixError;
}

std::uint32_t SetVELDIXResolution(void *handle, std::uint32_t x, std::uint32_t y,
                                  std::uint32_t width, std::uint32_t height)
{
    return functions.setResolution ? functions.setResolution(handle, x, y, width, height)
                                   : veldixError;
}

double GetVELDIXParam(void *handle, std::int32_t control)
{
    return functions.getParam ? functions.getParam(handle, control) : 0.0;
}

std::uint32_t SetVELDIXParam(void *handle, std::int32_t control, double value)
{
    return functions.setParam ? functions.setParam(handle, control, value) : veldixError;
}

std::uint32_t BeginVELDIXLive(void *handle)
{
    return functions.beginLive ? functions.beginLive(handle) : veldixError;
}

std::uint32_t GetVELDIXLiveFrame(void *handle, std::uint32_t *width, std::uint32_t *height,
                                 std::uint32_t *bpp, std::uint32_t *channels, std::uint8_t *buffer)
{
    return functions.getLiveFrame
               ? functions.getLiveFrame(handle, width, height, bpp, channels, buffer)
               : veldixError;
}

std::uint32_t StopVELDIXLive(void *handle)
{
    return functions.stopLive ? functions.stopLive(handle) : veldixError;
}

std::uint32_t CloseVELDIX(void *handle)
{
    return functions.close ? functions.close(handle) : veldixError;
}
