// SPDX-License-Identifier: MIT
// The sky's time: now, a running date, or a fixed one.
#include "virtualcamera/skyclock.h"

namespace virtualsky
{
Moment SkyClock::at(const SkyState &state, double systemSeconds)
{
    if (state.date != date || state.running != running) {
        date = state.date;
        running = state.running;
        dateRead = systemSeconds;
        trackingBegan.reset();
    }
    Moment moment = {state, systemSeconds};
    if (date)
        moment.utcSeconds = *date + (running ? systemSeconds - dateRead : 0.0);
    if (!state.tracking)
        trackingBegan.reset();
    else if (!trackingBegan)
        trackingBegan = moment.utcSeconds;
    if (state.tracking && !state.trackingSince)
        moment.state.trackingSince = trackingBegan;
    return moment;
}
} // namespace virtualsky
