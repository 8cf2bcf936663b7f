// SPDX-License-Identifier: MIT
// Hands and eyes for the engine alone.
#include "bench/assistant/person.h"

#include <algorithm>
#include <cmath>

namespace
{
using assistant::Stage;
using assistant::Status;

constexpr double longestStage = 120.0; // seconds of camera time
constexpr double far = 600.0;          // arcseconds
constexpr int looks = 12;              // at a bolt that should be right
constexpr int settlingFrames = 8;

double limited(double by, double most)
{
    return std::clamp(by, -most, most);
}

/// One frame's worth of turning the bolts towards the pole.
void turnBolts(MountOnSky &mount, const Status &status, const HandSpeeds &speeds, double duration)
{
    virtualsky::SkyState sky = mount.sky();
    const double most =
        (status.error->total.arcseconds > far ? speeds.boltFar : speeds.boltNear) * duration;
    sky.boltAltitude -= limited(status.error->altitude->arcseconds / 3600.0, most);
    sky.boltAzimuth -= limited(status.error->azimuth->arcseconds / 3600.0, most);
    mount.setSky(sky);
}

AlignmentResult failure(const MountOnSky &mount, const std::string &why)
{
    AlignmentResult result;
    result.whyNot = why;
    result.seconds = mount.seconds();
    return result;
}

bool isWithin(double shown, double real, double sigma)
{
    return std::abs(shown - real) <= 2.0 * sigma;
}
} // namespace

bool turnAxisAsTold(MountOnSky &mount, double degreesPerSecond)
{
    const double start = mount.seconds();
    double before = start;
    for (;;) {
        const Status status = mount.next();
        if (status.stage == Stage::Bolts)
            return true;
        if (mount.seconds() - start > longestStage)
            return false;
        if (status.stage == Stage::Axis) {
            virtualsky::SkyState sky = mount.sky();
            sky.raAngle += degreesPerSecond * (mount.seconds() - before);
            mount.setSky(sky);
        }
        before = mount.seconds();
    }
}

std::optional<Status> nextFigure(MountOnSky &mount, int frames)
{
    for (int i = 0; i < frames; ++i) {
        Status status = mount.next();
        if (status.error)
            return status;
    }
    return std::nullopt;
}

AlignmentResult alignAsTold(MountOnSky &mount, double goal, const HandSpeeds &speeds)
{
    if (!turnAxisAsTold(mount, speeds.axis))
        return failure(mount, "the axis was not found");
    const double began = mount.seconds();
    std::optional<Status> last;
    for (int look = 0; look < looks;) {
        const double before = mount.seconds();
        last = nextFigure(mount);
        if (!last)
            return failure(mount, "no figure");
        if (!last->error->altitude || !last->error->azimuth)
            return failure(mount, "no altitude or azimuth");
        if (mount.seconds() - began > 2.0 * longestStage)
            return failure(mount, "no end");
        if (last->error->total.arcseconds < goal)
            break;
        look += last->error->total.arcseconds < 60.0;
        turnBolts(mount, *last, speeds, mount.seconds() - before);
    }
    AlignmentResult result;
    result.boltsSeconds = mount.seconds() - began;
    for (int i = 0; i < settlingFrames; ++i)
        last = nextFigure(mount);
    if (!last)
        return failure(mount, "the figure went");
    result.finished = true;
    result.seconds = mount.seconds();
    const virtualsky::Truth truth = mount.truth();
    result.trueError = truth.poleError;
    result.shown = last->error->total.arcseconds;
    result.sigma = last->error->total.sigma;
    result.inside = isWithin(result.shown, result.trueError, result.sigma);
    return result;
}
