// SPDX-License-Identifier: MIT
// Observes the calls of a command in a child process.
#include "cameracommand/libraryguard.h"

#include <cmath>
#include <cstdlib>

#include "camera/veldix.h"
#include "cameracommand/actions.h"
#include "cameracommand/childprocess.h"
#include "cameracommand/grabbing.h"
#include "virtualcamera/cameraaddress.h"

namespace
{
/// Whether another library than the maker's is used in any case.
bool isShippedLibraryAsked(const CameraCommandLine &wishes)
{
    const char *const variable = std::getenv(virtualsky::cameraVariable);
    return wishes.camera || (variable && *variable);
}
} // namespace

std::chrono::milliseconds patienceFor(const std::string &call, double exposureSeconds)
{
    const bool opens = call == "OpenVELDIX" || call == "InitVELDIX";
    const std::chrono::seconds least(opens ? 30 : 10);
    return least + 2 * std::chrono::milliseconds(std::llround(1000.0 * exposureSeconds));
}

int runGuarded(int (*command)(const CameraCommandLine &), const CameraCommandLine &wishes)
{
    if (isShippedLibraryAsked(wishes))
        return command(wishes);
    const auto observed = [&](const ChildReport &report) {
        static const ChildReport *const told = &report; // one for the child's whole life
        observeCalls([](const char *operation) { told->call(operation); });
        return command(wishes);
    };
    const ChildEnd end = runInChild(observed, [&wishes](const std::string &call) {
        return patienceFor(call, wishes.exposureSeconds);
    });
    if (end.fate == ChildEnd::Fate::Returned)
        return end.status;
    complain((end.call.empty() ? "the command failed: " : "the camera library cannot be used: ") +
             end.fault);
    return failed;
}
