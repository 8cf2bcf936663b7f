# SPDX-License-Identifier: MIT
"""Apparent places of stars near the poles by astropy, to hold the astrometry against.

    /usr/bin/python3 generate.py > places.csv

Runs without network. Columns: date (UTC), right ascension and declination of the star in the
catalogue (degrees), the place in the celestial intermediate frame of date as seen from the Earth's
centre (degrees), right ascension from the true equinox of date (degrees). The stars are the template
stars, the two fastest, and of each hemisphere the one nearest to the pole and ten at random.
"""
import csv
import os
import random

import astropy.units as u
from astropy.coordinates import CIRS, TETE, Distance, SkyCoord
from astropy.time import Time
from astropy.utils import iers

iers.conf.auto_download = False
iers.conf.iers_degraded_accuracy = "ignore"

HERE = os.path.dirname(os.path.abspath(__file__))
CATALOGUE = os.path.join(HERE, "..", "..", "..", "astrometry", "pole_stars.csv")
DATES = ["2014-12-15T20:00:00", "2020-01-01T00:00:00", "2024-05-23T12:00:00",
         "2026-11-20T20:00:00", "2033-03-20T06:30:00", "2040-12-31T23:00:00"]
TEMPLATE = {+1: [259.23525, 37.954542, 351.75363], -1: [130.52279, 317.19517, 184.69192]}


def speed(row):
    return abs(float(row["pm_ra_cosdec_mas_yr"])) + abs(float(row["pm_dec_mas_yr"]))


def chosen_stars():
    with open(CATALOGUE) as file:
        rows = list(csv.DictReader(file))
    chance = random.Random(7)
    chosen = []
    for sign, wanted in TEMPLATE.items():
        half = [r for r in rows if float(r["dec_deg"]) * sign > 0]
        half.sort(key=lambda r: -abs(float(r["dec_deg"])))
        near = half[:60]
        for ra in wanted:
            chosen.append(min(near, key=lambda r: abs(float(r["ra_deg"]) - ra)))
        chosen.append(half[0])
        chosen += sorted(half, key=speed)[-2:]
        chosen += chance.sample([r for r in half if float(r["parallax_mas"]) > 0.2], 10)
    return chosen


def main():
    stars = chosen_stars()
    sky = SkyCoord([float(s["ra_deg"]) for s in stars] * u.deg,
                   [float(s["dec_deg"]) for s in stars] * u.deg,
                   distance=Distance(parallax=[float(s["parallax_mas"]) for s in stars] * u.mas),
                   pm_ra_cosdec=[float(s["pm_ra_cosdec_mas_yr"]) for s in stars] * u.mas / u.yr,
                   pm_dec=[float(s["pm_dec_mas_yr"]) for s in stars] * u.mas / u.yr,
                   radial_velocity=[0.0] * len(stars) * u.km / u.s, obstime=Time("J2000"))
    for date in DATES:
        time = Time(date, scale="utc")
        moved = sky.apply_space_motion(new_obstime=time)
        intermediate = moved.transform_to(CIRS(obstime=time))
        equinox = moved.transform_to(TETE(obstime=time))
        for star, c, e in zip(stars, intermediate, equinox):
            print("%sZ,%s,%s,%.8f,%.8f,%.8f" % (date, star["ra_deg"], star["dec_deg"], c.ra.deg,
                                                c.dec.deg, e.ra.deg))


if __name__ == "__main__":
    main()
