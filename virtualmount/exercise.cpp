// SPDX-License-Identifier: MIT
// Draws random exercises.
#include "virtualmount/exercise.h"

#include "virtualcamera/mount.h"
#include "virtualcamera/truth.h"
#include "virtualmount/mountmodel.h"

#include <optional>

namespace virtualmount
{
namespace
{
constexpr int maxDraws = 100;
constexpr double edge = 40.0; // minimum distance of a template star from the edges, pixels

double poleErrorDegrees(const SkyState &state)
{
    return virtualsky::angleBetween(virtualsky::poleDirection(state),
                                    virtualsky::axisDirection(state)) /
           virtualsky::degree;
}

bool isInside(const std::optional<virtualsky::Point> &star)
{
    return star && star->x >= edge && star->x <= virtualsky::sensorWidth - 1 - edge &&
           star->y >= edge && star->y <= virtualsky::sensorHeight - 1 - edge;
}

bool canBegin(const SkyState &state, double utcSeconds)
{
    if (poleErrorDegrees(state) < exerciseLeastError)
        return false;
    const virtualsky::Truth places = virtualsky::truth(state, utcSeconds);
    return isInside(places.starA) && isInside(places.starB);
}
} // namespace

void beginExercise(SkyState &state, double utcSeconds, std::mt19937 &random)
{
    std::uniform_real_distribution<double> bolt(-exerciseBolts, exerciseBolts);
    std::uniform_real_distribution<double> roll(-180.0, 180.0);
    for (int draw = 0; draw < maxDraws; ++draw) {
        state.boltAltitude = 0.0;
        turnBolt(state, &SkyState::boltAltitude, bolt(random));
        state.boltAzimuth = 0.0;
        turnBolt(state, &SkyState::boltAzimuth, bolt(random));
        state.roll = wrapped(roll(random));
        if (canBegin(state, utcSeconds))
            return;
    }
}

std::mt19937 systemRandom()
{
    std::random_device source;
    std::seed_seq seed{source(), source(), source(), source(),
                       source(), source(), source(), source()};
    return std::mt19937(seed);
}

bool isAligned(const SkyState &state)
{
    return poleErrorDegrees(state) <= alignedError;
}
} // namespace virtualmount
