// SPDX-License-Identifier: MIT
// Passes the window's wishes to the session, and remembers what the report needs.
#include "assistantwindow/sessioninstrument.h"

#include <algorithm>

namespace assistantwindow
{
SessionInstrument::SessionInstrument(const assistant::Settings &settings) : session(settings) {}

void SessionInstrument::findCameras()
{
    session.findCameras();
}

std::vector<CameraEntry> SessionInstrument::cameras()
{
    std::vector<CameraEntry> entriesFound;
    for (const std::string &id : session.link().cameras)
        entriesFound.push_back({QString::fromStdString(id), QString::fromStdString(id)});
    return entriesFound;
}

void SessionInstrument::connectCamera(const QString &id)
{
    beganAt.reset();
    last.reset();
    session.connectCamera(id.toStdString());
}

void SessionInstrument::disconnectCamera()
{
    session.disconnectCamera();
}

bool SessionInstrument::isConnected() const
{
    return session.isConnecting();
}

Range SessionInstrument::exposureRange() const
{
    return {1000.0, 500000.0};
}

void SessionInstrument::setExposure(double microseconds)
{
    session.setExposure(microseconds);
}

void SessionInstrument::setAutomaticExposure(bool on)
{
    session.setAutomaticExposure(on);
}

void SessionInstrument::startAgain()
{
    beganAt.reset();
    last.reset();
    session.startAgain();
}

void SessionInstrument::apply(const assistant::Settings &settings)
{
    session.setSettings(settings);
}

Snapshot SessionInstrument::latest()
{
    assistant::Snapshot now = session.latest();
    remember(now.status);
    const assistant::CameraLink link = session.link();
    const bool isLive = link.state == assistant::CameraLink::State::Live;
    return {std::move(now.status), std::move(now.picture), link.gain, now.number,
            isLive ? QString::fromStdString(link.id) : QString()};
}

void SessionInstrument::remember(const assistant::Status &status)
{
    if (status.frame > 0 && !beganAt)
        beganAt = status.steadySeconds;
    if (!status.error)
        return;
    last = status;
}

std::optional<assistant::Report> SessionInstrument::report()
{
    if (!last)
        return {};
    assistant::Report made;
    made.utcSeconds = last->utcSeconds;
    made.site = last->site;
    made.aim = last->aim;
    made.before = last->firstError ? *last->firstError : *last->error;
    made.after = *last->error;
    made.seconds = std::max(0.0, last->steadySeconds - beganAt.value_or(last->steadySeconds));
    return made;
}

bool SessionInstrument::close(int milliseconds)
{
    return session.close(milliseconds);
}
} // namespace assistantwindow
