// SPDX-License-Identifier: MIT
// Drives a session on the virtual camera through its sky file.
#include "bench/assistant/librarymount.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "virtualcamera/skyfile.h"

namespace
{
constexpr double patience = 10.0; // seconds
constexpr std::chrono::milliseconds pollInterval(5);

const std::string &skyPath()
{
    static const std::string path = [] {
        const char *const given = std::getenv("QUORVANDEL_SKY");
        if (given)
            return std::string(given);
        const char *const folder = std::getenv("XDG_RUNTIME_DIR");
        const std::string name = std::string(folder ? folder : "/tmp") + "/assistant-sky.ini";
        setenv("QUORVANDEL_SKY", name.c_str(), 1);
        return name;
    }();
    return path;
}

double steadyNow()
{
    return assistant::systemClocks().steady();
}
} // namespace

void writeSky(const virtualsky::SkyState &sky)
{
    if (!virtualsky::writeAtomically(skyPath(), virtualsky::format(sky)))
        throw std::runtime_error("the sky file cannot be written");
}

LibraryMount::LibraryMount(const virtualsky::SkyState &start, const assistant::Settings &settings)
    : state(start), date(*start.date)
{
    if (state.tracking && !state.trackingSince)
        state.trackingSince = state.date;
    writeSky(state);
    began = steadyNow();
    assistant::Clocks clocks = assistant::systemClocks();
    clocks.utc = [this] { return utc() + clockError; };
    clocks.synchronised = [] { return true; };
    engine = std::make_unique<assistant::AssistantSession>(settings, clocks);
    engine->connectCamera();
}

double LibraryMount::utc() const
{
    return date + seconds();
}

double LibraryMount::seconds() const
{
    return steadyNow() - began;
}

void LibraryMount::setSky(const virtualsky::SkyState &sky)
{
    state = sky;
    writeSky(state);
}

virtualsky::Truth LibraryMount::truth() const
{
    return virtualsky::truth(state, utc());
}

assistant::Status LibraryMount::next()
{
    const double asked = steadyNow();
    for (;;) {
        assistant::Snapshot now = engine->latest();
        if (now.number != seen && now.status.frame > 0) {
            seen = now.number;
            return now.status;
        }
        if (steadyNow() - asked > patience)
            return now.status;
        std::this_thread::sleep_for(pollInterval);
    }
}
