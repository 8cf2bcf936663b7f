// SPDX-License-Identifier: MIT
// The sixteen operations as a program finds them: by name, in the shared library.
#pragma once

#include <cstdint>
#include <vector>

struct VeldixLibrary {
    /// Loads the library that the build made and resolves every operation; ends the test if it
    /// cannot.
    VeldixLibrary();

    std::uint32_t (*initResource)();
    std::int32_t (*scan)();
    std::uint32_t (*getId)(std::int32_t, char *);
    void *(*open)(const char *);
    std::uint32_t (*setReadMode)(void *, std::uint32_t);
    std::uint32_t (*setStreamMode)(void *, std::uint8_t);
    std::uint32_t (*init)(void *);
    std::uint32_t (*setBits)(void *, std::uint32_t);
    std::uint32_t (*setBin)(void *, std::uint32_t, std::uint32_t);
    std::uint32_t (*setResolution)(void *, std::uint32_t, std::uint32_t, std::uint32_t,
                                   std::uint32_t);
    double (*getParam)(void *, std::int32_t);
    std::uint32_t (*setParam)(void *, std::int32_t, double);
    std::uint32_t (*beginLive)(void *);
    std::uint32_t (*getLiveFrame)(void *, std::uint32_t *, std::uint32_t *, std::uint32_t *,
                                  std::uint32_t *, std::uint8_t *);
    std::uint32_t (*stopLive)(void *);
    std::uint32_t (*close)(void *);

    /// A camera in live mode, or null.
    void *openLive(const char *id = "QUORVANDEL-V0001");
};

struct VeldixFrame {
    std::uint32_t width = 0, height = 0, bpp = 0, channels = 0;
    std::vector<std::uint8_t> buffer = std::vector<std::uint8_t>(1280 * 960 * 3);

    std::uint32_t fetch(const VeldixLibrary &library, void *handle)
    {
        return library.getLiveFrame(handle, &width, &height, &bpp, &channels, buffer.data());
    }
};
