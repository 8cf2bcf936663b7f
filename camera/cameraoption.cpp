// SPDX-License-Identifier: MIT
// The option `--camera` becomes the environment variable that the camera library reads.
#include "camera/cameraoption.h"

#include "virtualcamera/cameraaddress.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

const char *const cameraOptionHelp =
    "  --camera ADDRESS  use another camera than the maker's: sky (the virtual sky),\n"
    "                    indi://HOST[:PORT]/DEVICE or files:PATTERN\n";

namespace
{
constexpr char option[] = "--camera";
constexpr std::size_t optionLength = sizeof option - 1;

/// The option's value if `argument` is the option, else null. `next` is used up if it is the value.
const char *valueOf(const char *argument, const char *next, bool &nextIsUsed, bool &isOption)
{
    nextIsUsed = false;
    isOption = std::strncmp(argument, option, optionLength) == 0 &&
               (argument[optionLength] == '\0' || argument[optionLength] == '=');
    if (!isOption)
        return nullptr;
    if (argument[optionLength] == '=')
        return argument + optionLength + 1;
    nextIsUsed = next != nullptr;
    return next;
}

bool isGood(const char *program, const char *address)
{
    const char *const slash = std::strrchr(program, '/');
    const char *const name = slash ? slash + 1 : program;
    std::string fault = "needs a value";
    if (address && virtualsky::parseCameraAddress(address, &fault))
        return true;
    std::fprintf(stderr, "%s: --camera %s\n", name, fault.c_str());
    return false;
}
} // namespace

bool takeCameraOption(int &argc, char *argv[])
{
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        bool nextIsUsed = false, isOption = false;
        const char *const value =
            valueOf(argv[i], i + 1 < argc ? argv[i + 1] : nullptr, nextIsUsed, isOption);
        if (!isOption) {
            argv[kept++] = argv[i];
            continue;
        }
        if (!isGood(argv[0], value))
            return false;
        ::setenv(virtualsky::cameraVariable, value, 1);
        i += nextIsUsed ? 1 : 0;
    }
    argv[kept] = nullptr;
    argc = kept;
    return true;
}
