# SPDX-License-Identifier: MIT
"""Star lists of the pole's sky as cameras of many kinds would give them, with the pole's true place.

    /usr/bin/python3 generate_fields.py > fields.csv

Runs without network. Places come from astropy (celestial intermediate frame of date, seen from the
Earth's centre), lens and camera from numpy here. A line "field" begins each list: name, date (UTC),
width, height, hemisphere, scale at the frame's centre (arcseconds a pixel), roll (degrees clockwise
from up in which right ascension 0 of the equinox leaves the pole; 999 where the lens makes it
unclear), mirrored, the pole's x and y in pixels, greatest error that is allowed for the pole
(pixels: of the centroids' errors drawn out to where the pole lies). Lines "star": x, y, flux,
signal-to-noise, index of the catalogue star (first line 0) or -1. Brightest first.
"""
import csv
import math
import os

import astropy.units as u
import numpy as np
from astropy.coordinates import CIRS, TETE, Distance, SkyCoord
from astropy.time import Time
from astropy.utils import iers

iers.conf.auto_download = False
iers.conf.iers_degraded_accuracy = "ignore"

HERE = os.path.dirname(os.path.abspath(__file__))
CATALOGUE = os.path.join(HERE, "..", "..", "..", "astrometry", "pole_stars.csv")
ARCSEC = math.radians(1 / 3600)

# name, date, width, height, hemisphere, scale, roll, mirrored, distance of the frame's centre from
# the pole (degrees), direction of that offset (degrees), distortion at the corner (part of the
# radius), stars that are found, false ones, centroid error (pixels), greatest error of the pole
FIELDS = [
    ("finder north", "2026-11-20T20:00:00", 1280, 960, "north", 30.45, 33, 0, 1.2, 70, 0, 120, 0, 0.1, 0.15),
    ("finder south", "2026-11-20T20:00:00", 1280, 960, "south", 30.45, -120, 0, 0.8, 200, 0, 120, 0, 0.1, 0.15),
    ("finder north mirrored", "2040-06-01T00:00:00", 1280, 960, "north", 30.45, 150, 1, 2.0, 10, 0, 60, 10, 0.1, 0.2),
    ("finder south mirrored", "2020-01-01T00:00:00", 1280, 960, "south", 30.45, 90, 1, 2.0, 300, 0, 60, 10, 0.1, 0.2),
    ("few stars", "2026-11-20T20:00:00", 1280, 960, "north", 30.45, -10, 0, 1.0, 120, 0, 12, 2, 0.15, 0.6),
    ("many false stars", "2030-01-01T00:00:00", 1280, 960, "south", 30.45, 77, 0, 2.0, 0, 0, 40, 40, 0.1, 0.3),
    ("pole outside", "2026-11-20T20:00:00", 1280, 960, "north", 30.45, 5, 0, 7.5, 45, 0, 80, 0, 0.1, 0.5),
    ("pole far outside", "2033-05-05T05:05:05", 1280, 960, "south", 20.0, 5, 0, 9.0, 250, 0, 80, 5, 0.1, 1.0),
    ("guide scope", "2026-11-20T20:00:00", 1920, 1080, "north", 6.4, -60, 0, 0.7, 30, 0, 40, 10, 0.15, 0.3),
    ("guide scope south", "2028-08-08T08:00:00", 1920, 1080, "south", 6.4, 170, 1, 1.5, 30, 0, 40, 10, 0.15, 0.6),
    ("telescope", "2026-11-20T20:00:00", 6000, 4000, "north", 2.2, 99, 0, 0.6, 160, 0, 25, 60, 0.3, 0.9),
    ("camera lens", "2014-12-15T20:00:00", 4000, 3000, "south", 13.0, -45, 0, 3.0, 100, 0.008, 200, 20, 0.15, 0.6),
    ("wide lens", "2024-05-23T12:00:00", 1280, 960, "north", 68.0, 20, 0, 4.0, 10, 0, 150, 40, 0.1, 0.15),
    ("wide lens with distortion", "2024-05-23T12:00:00", 1600, 1200, "south", 60.0, -150, 0, 2.0, 190, -0.01, 200, 60, 0.1, 0.3),
]


def catalogue():
    with open(CATALOGUE) as file:
        rows = list(csv.DictReader(file))

    def column(name):
        return np.array([float(r[name]) for r in rows])
    parallax = np.maximum(column("parallax_mas"), 0.01)
    sky = SkyCoord(column("ra_deg") * u.deg, column("dec_deg") * u.deg,
                   distance=Distance(parallax=parallax * u.mas),
                   pm_ra_cosdec=column("pm_ra_cosdec_mas_yr") * u.mas / u.yr,
                   pm_dec=column("pm_dec_mas_yr") * u.mas / u.yr,
                   radial_velocity=np.zeros(len(rows)) * u.km / u.s, obstime=Time("J2000"))
    return sky, column("v_mag")


def unit(ra, dec):
    return np.stack([np.cos(dec) * np.cos(ra), np.cos(dec) * np.sin(ra), np.sin(dec)], -1)


class Camera:
    """A pinhole whose picture is turned until right ascension 0 leaves the pole as `roll` says."""

    def __init__(self, width, height, south, scale, mirrored, offset, towards, distortion):
        self.half = np.array([(width - 1) / 2, (height - 1) / 2])
        self.focal = 1 / math.tan(scale * ARCSEC)
        self.mirrored, self.distortion = mirrored, distortion
        self.corner = math.hypot(width, height) / 2
        sign = -1 if south else 1
        dec = sign * math.radians(90 - offset)
        self.forward = unit(np.array(math.radians(towards)), np.array(dec))
        right = np.cross([0, 0, 1.0], self.forward)
        self.right = right / np.linalg.norm(right)
        self.down = np.cross(self.forward, self.right)
        self.turn = 0.0

    def pixels(self, v):
        z = v @ self.forward
        x = np.stack([v @ self.right, v @ self.down], -1) / z[..., None] * self.focal
        radius = np.hypot(x[..., 0], x[..., 1]) / self.corner
        x = x * (1 + self.distortion * radius ** 2)[..., None]
        c, s = math.cos(self.turn), math.sin(self.turn)
        x = np.stack([c * x[..., 0] - s * x[..., 1], s * x[..., 0] + c * x[..., 1]], -1)
        if self.mirrored:
            x = x * np.array([-1, 1])
        return x + self.half, z

    def roll(self, meridian, sign):
        pole = self.pixels(np.array([0, 0, float(sign)]))[0]
        away = self.pixels(unit(np.array(meridian), np.array(sign * math.radians(89.99))))[0]
        return math.atan2(away[0] - pole[0], pole[1] - away[1])


def field(row, sky, magnitudes, number):
    (name, date, width, height, hemisphere, scale, roll, mirrored, offset, towards, distortion,
     found, false, error, allowed) = row
    chance = np.random.default_rng(100 + number)
    south = hemisphere == "south"
    sign = -1 if south else 1
    time = Time(date, scale="utc")
    moved = sky.apply_space_motion(new_obstime=time)
    places = moved.transform_to(CIRS(obstime=time))
    equinox = moved[:1].transform_to(TETE(obstime=time))
    meridian = places.ra.rad[0] - equinox.ra.rad[0]  # of right ascension 0 in CIRS
    camera = Camera(width, height, south, scale, mirrored, offset, towards, distortion)
    difference = math.radians(roll) - camera.roll(meridian, sign)
    camera.turn = -difference if mirrored else difference
    assert abs(math.remainder(camera.roll(meridian, sign) - math.radians(roll), 2 * math.pi)) < 1e-3
    v = unit(places.ra.rad, places.dec.rad)
    xy, z = camera.pixels(v)
    shown = ((z > 0.2) & (xy[:, 0] > 5) & (xy[:, 1] > 5) & (xy[:, 0] < width - 6)
             & (xy[:, 1] < height - 6))
    index = np.flatnonzero(shown)
    index = index[np.argsort(magnitudes[index])][:found]
    stars = []
    for i in index:
        flux = 1e6 * 10 ** (-0.4 * (magnitudes[i] + chance.normal(0, 0.15)))
        x, y = xy[i] + chance.normal(0, error, 2)
        stars.append((flux, x, y, int(i)))
    faint = min(s[0] for s in stars)
    for _ in range(false):
        flux = faint * math.exp(chance.exponential(1.0))
        stars.append((flux, chance.uniform(0, width - 1), chance.uniform(0, height - 1), -1))
    stars.sort(reverse=True)
    pole = camera.pixels(np.array([0, 0, float(sign)]))[0]
    print("field,%s,%sZ,%d,%d,%s,%.4f,%.3f,%d,%.4f,%.4f,%g" % (
        name, date, width, height, hemisphere, scale, roll, mirrored, pole[0], pole[1], allowed))
    for flux, x, y, i in stars:
        print("star,%.3f,%.3f,%.1f,%.1f,%d" % (x, y, flux, 0.6 * 2.5 / error, i))


def main():
    sky, magnitudes = catalogue()
    for number, row in enumerate(FIELDS):
        field(row, sky, magnitudes, number)


if __name__ == "__main__":
    main()
