// SPDX-License-Identifier: MIT
// Chooses between the sky and the module's sources.
#include "cameralibrary/chosensource.h"

#include <dlfcn.h>

namespace
{
using framesources::SourceSettings;
using virtualsky::Behaviour;
using virtualsky::Source;

/// What there is when the chosen source cannot be had: no camera.
class NoCamera : public virtualsky::FrameSource
{
public:
    Behaviour behaviour() override
    {
        Behaviour none;
        none.cameras = 0;
        return none;
    }
    unsigned frame(const virtualsky::FrameRequest &, std::uint8_t *) override { return 0; }
};

/// The module beside this library.
std::string modulePath()
{
    Dl_info here = {};
    static const char anchor = 0;
    if (::dladdr(&anchor, &here) == 0 || !here.dli_fname)
        return framesources::moduleFile;
    const std::string library = here.dli_fname;
    return library.substr(0, library.rfind('/') + 1) + framesources::moduleFile;
}
} // namespace

ChosenSource::ChosenSource(const std::string &skyFile, const std::string &wish,
                           virtualsky::SkyWatch::Report faults)
    : report(std::move(faults)), sky(std::make_shared<virtualsky::SkySource>(skyFile, report))
{
    if (wish.empty())
        return;
    std::string fault;
    wished = virtualsky::parseCameraAddress(wish, &fault);
    badWish = !wished;
    if (badWish)
        report(std::string(virtualsky::cameraVariable) + ": " + fault + "; there is no camera");
}

/// None = the sky.
std::optional<SourceSettings> ChosenSource::chosen(const virtualsky::SkyState &state)
{
    SourceSettings settings;
    settings.pace = state.pace;
    settings.stream = state.stream;
    settings.soften = state.soften;
    settings.scale = state.scale;
    settings.mirrored = state.mirrored;
    if (wished) {
        settings.address = *wished;
    } else if (state.source == Source::Indi) {
        settings.address = virtualsky::parseIndiAddress(state.indi).value_or(settings.address);
        settings.address.source = Source::Indi; // without a host: the key is missing
    } else if (state.source == Source::Files) {
        settings.address.source = Source::Files;
        settings.address.pattern = state.files;
    }
    if (settings.address.source == Source::Sky)
        return std::nullopt;
    return settings;
}

virtualsky::FrameSource *ChosenSource::open(const SourceSettings &settings)
{
    const bool indi = settings.address.source == Source::Indi;
    if ((indi ? settings.address.host : settings.address.pattern).empty()) {
        report(indi ? "source is indi, but the key indi is missing; there is no camera"
                    : "source is files, but the key files is missing; there is no camera");
        return nullptr;
    }
    void *const module = ::dlopen(modulePath().c_str(), RTLD_NOW | RTLD_LOCAL);
    void *const function = module ? ::dlsym(module, framesources::moduleFunction) : nullptr;
    if (!function) {
        const char *const reason = ::dlerror();
        report(std::string(reason ? reason : "the module has no source") + "; there is no camera");
        return nullptr;
    }
    return reinterpret_cast<framesources::OpenFrameSource>(function)(&settings);
}

std::shared_ptr<virtualsky::FrameSource> ChosenSource::current()
{
    const std::optional<SourceSettings> wanted = chosen(sky->settings());
    const std::lock_guard<std::mutex> lock(mutex);
    if (badWish) {
        if (!source)
            source = std::make_shared<NoCamera>();
        return source;
    }
    if (source && wanted == opened)
        return source;
    opened = wanted;
    if (!wanted) {
        source = sky;
        return source;
    }
    source.reset(open(*wanted));
    if (!source)
        source = std::make_shared<NoCamera>();
    return source;
}

Behaviour ChosenSource::behaviour()
{
    return current()->behaviour();
}

std::string ChosenSource::serialNumber(unsigned camera)
{
    return current()->serialNumber(camera);
}

void ChosenSource::pause()
{
    current()->pause();
}

unsigned ChosenSource::frame(const virtualsky::FrameRequest &request, std::uint8_t *out)
{
    return current()->frame(request, out);
}
