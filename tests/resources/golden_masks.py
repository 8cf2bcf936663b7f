#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Where are the stars in the template masks? By astropy, independently of tools/make_masks.py.

    tests/resources/golden_masks.py

Directions of mid 2024 on the mean equator of date (proper motion included), gnomonic plane about
the pole, least-squares similarity that brings A, B and D to their template pixels. Prints the rows
of masks_data() in tst_resources.cpp: pixels, x to the right, y downwards.
"""
import csv
import pathlib

import astropy.units as u
import numpy as np
from astropy.coordinates import FK5, ICRS, SkyCoord
from astropy.time import Time

DATE = Time("2024-07-01")
LIST = pathlib.Path(__file__).resolve().parents[2] / "astrometry/pole_stars.csv"

# A, B and D by their places (degrees, J2000) with their template pixels, then further stars by HD
# number; the sign gives how right ascension grows on the screen (+1 clockwise).
FIELDS = [
    ("north", 1, [(259.23525, 89.03772), (37.95454, 89.26411), (351.75363, 87.30750)],
     [445 + 218j, 400 + 400j, 648 + 495j], ["5848", "107192", "5914", "221142"]),
    ("south", -1, [(130.52279, -89.46053), (317.19517, -88.95650), (184.69192, -88.41492)],
     [227 + 405j, 400 + 337j, 228 + 563j], ["129723", "206553", "148451", "219765"]),
]


def plane(rows, sense):
    """Gnomonic plane of date, radians, as complex numbers."""
    column = lambda name: np.array([float(row[name]) for row in rows])
    stars = SkyCoord(column("ra_deg") * u.deg, column("dec_deg") * u.deg, frame=ICRS(),
                     pm_ra_cosdec=column("pm_ra_cosdec_mas_yr") * u.mas / u.yr,
                     pm_dec=column("pm_dec_mas_yr") * u.mas / u.yr, obstime=Time("J2000"))
    of_date = stars.apply_space_motion(new_obstime=DATE).transform_to(FK5(equinox=DATE))
    distance = np.tan(np.pi / 2 - abs(of_date.dec.rad))
    return distance * np.exp(1j * sense * of_date.ra.rad)


def main():
    with open(LIST, encoding="utf-8", newline="") as file:
        table = list(csv.DictReader(file))
    for name, sense, places, pixels, numbers in FIELDS:
        def away(row, place):
            return np.hypot((float(row["ra_deg"]) - place[0]) * np.cos(np.radians(place[1])),
                            float(row["dec_deg"]) - place[1])

        chosen = [min(table, key=lambda row: away(row, place)) for place in places]
        chosen += [next(row for row in table if row["hd"] == number) for number in numbers]
        points = plane(chosen, sense)
        equations = np.stack([points[:3], np.ones(3)], 1)
        (turn, shift), *_ = np.linalg.lstsq(equations, np.array(pixels), rcond=None)
        titles = ["A", "B", "D"] + ["HD " + number for number in numbers]
        for title, pixel in zip(titles, turn * points + shift):
            print(f'{{"{name}", "{title}", {pixel.real:.1f}, {pixel.imag:.1f}}},')


if __name__ == "__main__":
    main()
