// SPDX-License-Identifier: MIT
// The pauses between two tries of a stream.
#include "framesources/streamchoice.h"

#include <algorithm>

namespace framesources
{
namespace
{
std::chrono::steady_clock::duration span(double seconds)
{
    return std::chrono::duration_cast<std::chrono::steady_clock::duration>(
        std::chrono::duration<double>(seconds));
}
} // namespace

void StreamChoice::connected(Time now)
{
    const Time soon = now + span(pauses.connection);
    if (failed)
        retryAt = tryFailed ? std::max(retryAt, soon) : soon;
    onProbation |= wasConnected;
    wasConnected = true;
    since = now;
}

bool StreamChoice::came(Time now)
{
    const bool isNew = failed;
    failed = false;
    hasCome = true;
    if (isNew) {
        since = now;
    } else if (onProbation && now - since > span(pauses.steady)) {
        onProbation = tryFailed = false;
        pause = pauses.first;
    }
    return isNew;
}

bool StreamChoice::fell(Time now)
{
    const bool came = !failed;
    tryFailed = onProbation;
    failed = onProbation = true;
    retryAt = now + span(pause);
    pause = std::min(2.0 * pause, pauses.longest);
    return came;
}
} // namespace framesources
