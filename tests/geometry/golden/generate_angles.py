# SPDX-License-Identifier: MIT
"""The angles of the template stars at several dates by astropy.

    /usr/bin/python3 generate_angles.py > anglesofdate.csv

Runs without network. Columns: date (UTC), hemisphere, BAP, ABP, DBP (degrees): angles of the plane
triangles of stars A, B, D and the true pole of date in the gnomonic plane about the pole, from the
places in the celestial intermediate frame of date as seen from the Earth's centre. The stars are
taken from the catalogue by their HD or name.
"""
import csv
import math
import os

import astropy.units as u
import numpy as np
from astropy.coordinates import CIRS, Distance, SkyCoord
from astropy.time import Time
from astropy.utils import iers

iers.conf.auto_download = False
iers.conf.iers_degraded_accuracy = "ignore"

HERE = os.path.dirname(os.path.abspath(__file__))
CATALOGUE = os.path.join(HERE, "..", "..", "..", "astrometry", "pole_stars.csv")
STARS = {"north": [(259.23525, 89.03772), (37.95454, 89.26411), (351.75363, 87.30750)],
         "south": [(130.52279, -89.46053), (317.19517, -88.95650), (184.69192, -88.41492)]}
DATES = ["2016-05-23T00:00:00", "2024-05-23T00:00:00", "2026-11-20T20:00:00", "2030-01-01T00:00:00",
         "2040-06-01T12:00:00"]


def nearest(rows, place):
    def distance(row):
        return math.hypot(float(row["dec_deg"]) - place[1], (float(row["ra_deg"]) - place[0])
                          * math.cos(math.radians(place[1])))
    return min(rows, key=distance)


def angle(corner, a, b):
    p, q = a - corner, b - corner
    return math.degrees(math.acos(np.dot(p, q) / np.linalg.norm(p) / np.linalg.norm(q)))


def main():
    with open(CATALOGUE) as file:
        rows = list(csv.DictReader(file))
    for date in DATES:
        time = Time(date, scale="utc")
        for hemisphere, wanted in STARS.items():
            stars = [nearest(rows, place) for place in wanted]
            sky = SkyCoord([float(s["ra_deg"]) for s in stars] * u.deg,
                           [float(s["dec_deg"]) for s in stars] * u.deg,
                           distance=Distance(parallax=[float(s["parallax_mas"])
                                                       for s in stars] * u.mas),
                           pm_ra_cosdec=[float(s["pm_ra_cosdec_mas_yr"])
                                         for s in stars] * u.mas / u.yr,
                           pm_dec=[float(s["pm_dec_mas_yr"]) for s in stars] * u.mas / u.yr,
                           radial_velocity=[0.0] * 3 * u.km / u.s, obstime=Time("J2000"))
            places = sky.apply_space_motion(new_obstime=time).transform_to(CIRS(obstime=time))
            radius = np.tan(np.pi / 2 - np.abs(places.dec.rad))
            a, b, d = np.stack([radius * np.cos(places.ra.rad), radius * np.sin(places.ra.rad)], 1)
            pole = np.zeros(2)
            print("%sZ,%s,%.6f,%.6f,%.6f" % (date, hemisphere, angle(a, b, pole),
                                             angle(b, a, pole), angle(b, d, pole)))


if __name__ == "__main__":
    main()
