// SPDX-License-Identifier: MIT
// INDI's simulated camera on its simulated telescope, whose RA axis stands as the sky file's mount.
#pragma once

#include <cmath>
#include <ctime>
#include <memory>
#include <optional>

#include "astrometry/places.h"
#include "tests/indi/indiserver.h"
#include "virtualcamera/optics.h"
#include "virtualcamera/skystate.h"

class SimulatedMount
{
public:
    static constexpr double declination = 89.3; ///< of the telescope, degrees, of date

    static bool isInstalled()
    {
        return IndiServer::isInstalled() &&
               !QStandardPaths::findExecutable("indi_simulator_telescope").isEmpty();
    }

    /// @param skyFile of the mount; need not exist before the first frame
    SimulatedMount(const QString &skyFile, double latitude, double longitude)
        : siteLatitude(latitude), siteLongitude(longitude), home(siderealTime() - homeAngle)
    {
        server.variables["GSC_SKY"] = skyFile;
        server.variables["GSC_HOME"] = QString::number(home, 'f', 8);
    }

    /// The mount and the camera on it that correspond to the telescope at home: the camera is fixed
    /// beside the axis as far as the telescope is pointed from it, with the pole to the right.
    virtualsky::SkyState sky() const
    {
        virtualsky::SkyState state;
        state.latitude = siteLatitude;
        state.longitude = siteLongitude;
        state.tracking = true;
        state.trackingSince = began;
        state.axisX = std::tan((90.0 - declination) * astrometry::degree) /
                      std::tan(virtualsky::pixelScale * astrometry::arcsecond);
        state.axisY = 0.0;
        state.roll = homeAngle - 90.0;
        state.stream = false; // the simulated video is too coarse for faint stars
        state.soften = true;
        state.refraction = true;
        return state;
    }

    /// True once the telescope is at home and the camera shows its field.
    bool start()
    {
        if (!server.start({"indi_simulator_ccd", "indi_simulator_telescope"}))
            return false;
        SimulatedSensor sensor;
        sensor.atPole = false;
        telescope = server.client("Telescope Simulator");
        if (!telescope || !server.set(sensor))
            return false;
        telescope->sendSwitch("CONNECTION", "CONNECT");
        if (!IndiServer::waitFor(*telescope, "EQUATORIAL_EOD_COORD") ||
            !IndiServer::waitFor(*telescope, "GEOGRAPHIC_COORD"))
            return false;
        telescope->sendNumbers("GEOGRAPHIC_COORD",
                               {{"LAT", siteLatitude},
                                {"LONG", std::fmod(siteLongitude + 360.0, 360.0)},
                                {"ELEV", 0}});
        telescope->sendSwitch("ON_COORD_SET", "TRACK");
        return turnTo(0.0).has_value();
    }

    /// Turns the telescope's RA axis, positive as it tracks, with the event loop running.
    /// @param degrees from home, 0 to 135: there it stays on one side of its pier
    /// @return where it stands then, degrees; nothing if it does not arrive
    std::optional<double> turnTo(double degrees)
    {
        const double wanted = hours(home - degrees);
        const auto isThere = [&] {
            telescope->waitForNews(std::chrono::milliseconds(1));
            const auto ra = telescope->number("EQUATORIAL_EOD_COORD", "RA");
            return ra && std::abs(std::remainder(ra->value - wanted, 24.0)) < 0.01 &&
                   telescope->state("EQUATORIAL_EOD_COORD") == framesources::IndiState::Ok;
        };
        telescope->sendNumbers("EQUATORIAL_EOD_COORD", {{"RA", wanted}, {"DEC", declination}});
        if (!QTest::qWaitFor(isThere, slewTimeout))
            return std::nullopt;
        QTest::qWait(1000); // its last correction, and its way to the camera
        telescope->waitForNews(std::chrono::milliseconds(1));
        const auto ra = telescope->number("EQUATORIAL_EOD_COORD", "RA");
        return std::remainder(home - ra->value * 15.0, 360.0);
    }

    double homeRa() const { return home; } ///< degrees
    IndiServer server;

private:
    static constexpr double homeAngle = 30.0;  // hour angle of the telescope at home, degrees
    static constexpr int slewTimeout = 180000; // milliseconds; it turns by five degrees a second

    static double hours(double degrees) { return std::fmod(degrees + 720.0, 360.0) / 15.0; }

    double siderealTime() const // degrees
    {
        return (astrometry::earthRotationAngle(began) - astrometry::equationOfOrigins(began)) /
                   astrometry::degree +
               siteLongitude;
    }

    const double began = double(std::time(nullptr)); // when home has its hour angle
    const double siteLatitude, siteLongitude;
    const double home; // right ascension, degrees
    std::unique_ptr<framesources::IndiClient> telescope;
};
