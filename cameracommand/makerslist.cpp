// SPDX-License-Identifier: MIT
// A child process asks the library.
#include "cameracommand/makerslist.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <dlfcn.h>
#include <exception>

#include "camera/cameraopening.h"
#include "cameracommand/childprocess.h"

namespace
{
constexpr char there[] = "it is there and cannot be used: ";

/// What the child's line is; its first character.
enum Kind : char { Remark = 'r', Camera = 'u' };

void tell(const ChildReport &report, Kind kind, const std::string &text)
{
    report.tell(char(kind) + text);
}

void tellFault(const ChildReport &report, const std::string &text)
{
    tell(report, Remark, there + text);
}

/// Tells what camera `index` is. The library is given far more room than its IDs need.
void tellCamera(const ChildReport &report, std::uint32_t (*getId)(std::int32_t, char *),
                std::int32_t index)
{
    std::array<char, 16384> buffer{};
    report.call("GetVELDIXId");
    if (getId(index, buffer.data()) != 0)
        return tell(report, Remark, "a camera without an ID");
    buffer.back() = '\0';
    const std::string id = buffer.data();
    if (id.size() < std::size_t(maxIdSize))
        tell(report, Camera, id);
    else
        tell(report, Remark,
             "a camera that cannot be used: its ID of " + std::to_string(id.size()) +
                 " characters is too long");
}

void tellCameras(const ChildReport &report, void *library)
{
    using Init = std::uint32_t (*)();
    using Scan = std::int32_t (*)();
    using GetId = std::uint32_t (*)(std::int32_t, char *);
    const auto init = reinterpret_cast<Init>(::dlsym(library, "InitVELDIXResource"));
    const auto scan = reinterpret_cast<Scan>(::dlsym(library, "ScanVELDIX"));
    const auto getId = reinterpret_cast<GetId>(::dlsym(library, "GetVELDIXId"));
    if (!init || !scan || !getId)
        return tellFault(report, "it lacks functions");
    report.call("InitVELDIXResource");
    if (init() != 0)
        return tellFault(report, "it does not start");
    report.call("ScanVELDIX");
    const std::int32_t count = std::min(scan(), maxCameras);
    if (count <= 0)
        tell(report, Remark, "it finds no camera");
    for (std::int32_t i = 0; i < count; ++i)
        tellCamera(report, getId, i);
}

void askLibrary(const ChildReport &report, const char *name)
{
    report.call("loading");
    try {
        if (void *const library = ::dlopen(name, RTLD_NOW | RTLD_LOCAL))
            tellCameras(report, library);
        else
            tell(report, Remark, ::dlerror());
    } catch (const std::exception &exception) {
        tellFault(report, std::string("it threw an exception: ") +
                              (exception.what() ? exception.what() : ""));
    } catch (...) {
        tellFault(report, "it threw an exception: no std::exception");
    }
}
} // namespace

MakersList listMakersCameras(const char *library, std::chrono::milliseconds patience)
{
    const auto ask = [library](const ChildReport &report) {
        askLibrary(report, library);
        return 0;
    };
    const ChildEnd end = runInChild(ask, patience);
    MakersList list;
    for (const std::string &line : end.lines) {
        list.lines.push_back(line.substr(1));
        list.usable += line[0] == Camera ? 1 : 0;
    }
    if (end.fate == ChildEnd::Fate::Failed)
        list.lines.push_back(there + end.fault);
    if (end.fate == ChildEnd::Fate::NotStarted)
        list.lines.push_back("it cannot be asked: " + end.fault);
    return list;
}
