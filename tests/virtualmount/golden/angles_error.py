# SPDX-License-Identifier: MIT
"""By how much do the built-in star angles miss the pole? Reference for the virtual mount's value.

    /usr/bin/python3 angles_error.py > angles_error.csv

Runs without network. Star places by astropy (CIRS of the Earth's centre: diurnal aberration, up to
0.3 arcseconds, is left out). The pole is where the rays from A and B meet that leave the side A-B
under the built-in angles, in the plane that touches the sphere at the true pole of date.
Columns: hemisphere, UTC, year of the angles, arcseconds between that pole and the true one.
"""
import csv
import os

import astropy.units as u
import numpy as np
from astropy.coordinates import CIRS, Distance, SkyCoord
from astropy.time import Time
from astropy.utils import iers

iers.conf.auto_download = False
iers.conf.iers_degraded_accuracy = "ignore"

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.join(HERE, "..", "..", "..")
CATALOGUE = os.path.join(ROOT, "virtualcamera", "data", "pole_stars.csv")
DATES = [("2016-05-23T00:00:00", 2016), ("2024-05-23T00:00:00", 2024),
         ("2024-11-23T06:00:00", 2024), ("2026-11-20T20:00:00", 2024),
         ("2026-11-20T20:00:00", 2016), ("2030-01-01T00:00:00", 2024),
         ("2045-07-01T12:00:00", 2024)]
# Right ascension and declination of A and B, degrees, ICRS.
STARS = {"north": [(259.23525, 89.03772), (37.95454, 89.26411)],
         "south": [(130.52279, -89.46053), (317.19517, -88.95650)]}
FILES = {"north": "NStarPosData.ini", "south": "SStarPosData.ini"}


def catalogue_star(wanted):
    with open(CATALOGUE) as file:
        return min(csv.DictReader(file),
                   key=lambda r: abs(float(r["ra_deg"]) - wanted[0])
                   + 100 * abs(float(r["dec_deg"]) - wanted[1]))


def in_plane(row, time, sign):
    """Arcseconds right and up of the pole, as a complex number."""
    star = SkyCoord(float(row["ra_deg"]) * u.deg, float(row["dec_deg"]) * u.deg,
                    distance=Distance(parallax=float(row["parallax_mas"]) * u.mas),
                    pm_ra_cosdec=float(row["pm_ra_cosdec_mas_yr"]) * u.mas / u.yr,
                    pm_dec=float(row["pm_dec_mas_yr"]) * u.mas / u.yr,
                    radial_velocity=0 * u.km / u.s, obstime=Time("J2000"))
    place = star.apply_space_motion(new_obstime=time).transform_to(CIRS(obstime=time))
    radius = np.degrees(np.tan(np.pi / 2 - sign * place.dec.rad)) * 3600
    return radius * np.exp(1j * place.ra.rad)


def built_in(hemisphere, year):
    with open(os.path.join(ROOT, "resources", "starData", FILES[hemisphere])) as file:
        values = dict(line.strip().split("=", 1) for line in file if "=" in line)
    return [np.radians(int(values["%s_%d0523" % (name, year)]) / 1e14) for name in ("BAP", "ABP")]


def miss(a, b, at_a, at_b):
    """The nearer to 0 of the two points where the rays can meet."""
    side = (b - a) / abs(b - a)
    meetings = []
    for hand in (1, -1):
        from_a = side * np.exp(1j * hand * at_a)
        from_b = -side * np.exp(-1j * hand * at_b)
        lengths = np.linalg.solve([[from_a.real, -from_b.real], [from_a.imag, -from_b.imag]],
                                  [(b - a).real, (b - a).imag])
        meetings.append(abs(a + lengths[0] * from_a))
    return min(meetings)


def main():
    for hemisphere, sign in (("north", 1), ("south", -1)):
        rows = [catalogue_star(star) for star in STARS[hemisphere]]
        for date, year in DATES:
            time = Time(date, scale="utc")
            a, b = (in_plane(row, time, sign) for row in rows)
            print("%s,%sZ,%d,%.2f" % (hemisphere, date, year,
                                      miss(a, b, *built_in(hemisphere, year))))


if __name__ == "__main__":
    main()
