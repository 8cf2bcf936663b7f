// SPDX-License-Identifier: MIT
// Opens the chosen camera and waits for frames.
#include "cameracommand/grabbing.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>

#include "camera/loadprobe.h"
#include "camera/veldix.h"
#include "cameracommand/operationscamera.h"
#include "framesources/nativecameras.h"
#include "virtualcamera/skyfile.h"
#include "virtualcamera/skywatch.h"

#include <QByteArray>

namespace
{
using framesources::SourceSettings;
using virtualsky::Source;

/// Whether the loader finds a library of the maker's name, which the program prefers: also one
/// that cannot be used. One that can stays loaded, since some crash as they are unloaded.
bool makersLibraryIsThere()
{
    if (!canLoadSafely(makersLibrary) || ::dlopen(makersLibrary, RTLD_NOW | RTLD_LOCAL))
        return true;
    void *const library = ::dlopen(makersLibrary, RTLD_LAZY | RTLD_LOCAL);
    if (library)
        ::dlclose(library);
    return library != nullptr;
}
} // namespace

void complain(const std::string &text)
{
    std::fprintf(stderr, "quorvandel-camera: %s\n", text.c_str());
}

std::optional<SourceSettings> chosenSource(const CameraCommandLine &wishes)
{
    virtualsky::SkyWatch watch(virtualsky::skyFilePath(), complain);
    const virtualsky::SkyState &sky = watch.current();
    SourceSettings settings;
    settings.pace = sky.pace;
    settings.stream = sky.stream;
    settings.soften = sky.soften;
    const char *const variable = std::getenv(virtualsky::cameraVariable);
    const bool hasVariable = variable && *variable;
    std::optional<virtualsky::CameraAddress> address = wishes.camera;
    if (!address && hasVariable)
        address = virtualsky::parseCameraAddress(variable);
    if (!address && hasVariable)
        return std::nullopt; // the shipped library refuses it, as in the programs
    if (!address && makersLibraryIsThere())
        return std::nullopt;
    if (!address && sky.source == Source::Indi)
        address = virtualsky::parseIndiAddress(sky.indi);
    if (!address && sky.source == Source::Files) {
        address.emplace();
        address->source = Source::Files;
        address->pattern = sky.files;
    }
    if (!address || address->source == Source::Sky)
        return std::nullopt;
    settings.address = *address;
    return settings;
}

std::unique_ptr<framesources::NativeCamera> openCamera(const CameraCommandLine &wishes,
                                                       const std::optional<SourceSettings> &source)
{
    std::unique_ptr<framesources::NativeCamera> camera;
    if (source) {
        camera = makeNativeCamera(*source, complain);
    } else {
        if (wishes.camera)
            ::setenv(virtualsky::cameraVariable, addressText(*wishes.camera).c_str(), 1);
        camera = std::make_unique<OperationsCamera>(complain);
        if (!camera->isPresent())
            camera.reset();
    }
    return camera;
}

std::optional<framesources::NativeFrame> awaitFrame(framesources::NativeCamera &camera,
                                                    const CameraCommandLine &wishes)
{
    using SteadyClock = std::chrono::steady_clock;
    const std::chrono::duration<double> patience(30.0 + 2.0 * wishes.exposureSeconds);
    framesources::Wish wish;
    wish.exposureSeconds = wishes.exposureSeconds;
    wish.gain = wishes.gain;
    wish.whole = true;
    wish.wanted = true;
    constexpr std::chrono::seconds absenceTimeout(8); // some tries to connect
    const SteadyClock::time_point begin = SteadyClock::now();
    SteadyClock::time_point seen = begin;
    while (SteadyClock::now() - begin < patience && SteadyClock::now() - seen < absenceTimeout) {
        if (auto frame = camera.next(wish))
            return frame;
        if (camera.isPresent())
            seen = SteadyClock::now();
    }
    complain("no frame came");
    return std::nullopt;
}
