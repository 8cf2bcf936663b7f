#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""How many catalogue stars stand out of each random sky, by astropy and numpy alone, and how many of
the skies with enough of them were recognised?

    build/release/bench/recognitionreport skies 2000 > skies.csv
    /usr/bin/python3 bench/recognition/skycounts.py skies.csv

Places come from astropy, the picture's geometry and light from docs/virtual-camera.md. A star
counts if its flux is above 5 sigma of the best weighting (noise of read-out, sky and of its own
photons; what would rise above full scale is not counted), if it lies 4 pixels or more within the edge, and if no brighter one is within a star's
width. Prints the table of docs/recognition.md and how often the program's own count differs.
"""
import csv
import math
import os
import sys

import astropy.units as u
import numpy as np
from astropy.coordinates import AltAz, Distance, EarthLocation, SkyCoord, erfa_astrom
from astropy.time import Time
from astropy.utils import iers

iers.conf.auto_download = False
iers.conf.iers_degraded_accuracy = "ignore"
erfa_astrom.get_polar_motion = lambda time: (0.0, 0.0)

HERE = os.path.dirname(os.path.abspath(__file__))
CATALOGUE = os.path.join(HERE, "..", "..", "astrometry", "pole_stars.csv")
SCALE, WIDTH, HEIGHT = 30.45, 1280, 960
ZERO, MOON, BIAS_NOISE = 1.5e6, 17.0, 0.6
WRONG = 60.0  # arcseconds: a pole further off than this counts as not recognised


def catalogue():
    with open(CATALOGUE) as file:
        rows = list(csv.DictReader(line for line in file if not line.startswith("#")))
    column = lambda name: np.array([float(r[name]) for r in rows])
    stars = SkyCoord(column("ra_deg") * u.deg, column("dec_deg") * u.deg,
                     distance=Distance(parallax=np.maximum(column("parallax_mas"), 0.01) * u.mas),
                     pm_ra_cosdec=column("pm_ra_cosdec_mas_yr") * u.mas / u.yr,
                     pm_dec=column("pm_dec_mas_yr") * u.mas / u.yr,
                     radial_velocity=np.zeros(len(rows)) * u.km / u.s, obstime=Time("J2000"))
    return stars, column("v_mag"), column("dec_deg")


def pixels(alt, az, sky):
    """Places in the picture: polar coordinates about the axis, then the tilt to its pixel."""
    lat = sky["latitude"]
    south = lat < 0
    axis_alt = math.radians(abs(lat) + sky["bolt_altitude"])
    axis_az = math.radians(180 - sky["bolt_azimuth"] if south else sky["bolt_azimuth"])
    # Angle from the axis, and position angle from the zenith's side, clockwise as seen from inside.
    daz = az - axis_az
    away = np.arccos(np.clip(np.sin(alt) * math.sin(axis_alt)
                             + np.cos(alt) * math.cos(axis_alt) * np.cos(daz), -1, 1))
    angle = np.arctan2(np.sin(daz) * np.cos(alt),
                       np.sin(alt) * math.cos(axis_alt) - np.cos(alt) * math.sin(axis_alt) * np.cos(daz))
    angle = angle + math.radians(sky["roll"] + (-1 if south else 1) * sky["ra_angle"])
    star = np.stack([np.sin(away) * np.sin(angle), -np.sin(away) * np.cos(angle), np.cos(away)])
    focal = 1 / math.tan(math.radians(SCALE / 3600))
    to = np.array([sky["axis_x"], sky["axis_y"], focal])
    to /= np.linalg.norm(to)
    # Rodrigues: the shortest turn that takes forward to the axis' pixel.
    k = np.cross([0, 0, 1], to)
    sine, cosine = np.linalg.norm(k), to[2]
    if sine > 0:
        k = k / sine
        star = (star * cosine + np.cross(k, star.T).T * sine + np.outer(k, k @ star) * (1 - cosine))
    ahead = star[2] > 0.2
    x = (WIDTH - 1) / 2 + focal * star[0] / np.where(ahead, star[2], 1)
    y = (HEIGHT - 1) / 2 + focal * star[1] / np.where(ahead, star[2], 1)
    return np.where(ahead, x, -1e9), np.where(ahead, y, -1e9)


def count(sky, stars, v, dec):
    south = sky["latitude"] < 0
    half = dec < 0 if south else dec > 0
    time = Time(sky["date"], format="unix", scale="utc")
    time.delta_ut1_utc = 0.0
    location = EarthLocation.from_geodetic(sky["longitude"], sky["latitude"], 0)
    places = stars[half].apply_space_motion(new_obstime=time).transform_to(
        AltAz(obstime=time, location=location, pressure=0 * u.hPa))
    x, y = pixels(places.alt.rad, places.az.rad, sky)
    values = 0.7 * 10 ** ((sky["gain"] - 50) / 50)
    channels, light = sky["channels"], (1 - sky["clouds"]) * sky["seconds"]
    background = ZERO * SCALE**2 * light * (
        10 ** (-0.4 * sky["sky_magnitude"]) + sky["moon"] * 10 ** (-0.4 * MOON))
    variance = (3 * values) ** 2 + BIAS_NOISE**2 + background * values**2 + 1 / 12
    flux = ZERO * 10 ** (-0.4 * v[half]) * light * values
    sigma = math.hypot(sky["fwhm"], sky["seeing"] / SCALE) / 2.354820045
    headroom = 255 - 8 - background * values
    if headroom <= 0:
        return 0
    peak = flux / (2 * math.pi * sigma**2)
    shown = np.where(peak <= headroom, flux, headroom * 2 * math.pi * sigma**2
                     * (1 + np.log(np.maximum(peak / headroom, 1))))
    noise = np.sqrt((4 * math.pi * sigma**2 * variance + flux * values) / channels)
    seen = (shown > 5 * noise) & (x > 4) & (y > 4) & (x < WIDTH - 5) & (y < HEIGHT - 5)
    order = [i for i in np.argsort(-flux) if seen[i]]
    kept = []
    for i in order:
        if all(math.hypot(x[i] - x[j], y[i] - y[j]) >= 2.355 * sigma for j in kept):
            kept.append(i)
    return len(kept)


def main():
    stars, v, dec = catalogue()
    with open(sys.argv[1]) as file:
        skies = [{k: float(value) for k, value in row.items()} for row in csv.DictReader(file)]
    counts = np.array([count(sky, stars, v, dec) for sky in skies])
    own = np.array([sky["above"] for sky in skies])
    right = np.array([sky["recognised"] == 1 and sky["error_arcsec"] < WRONG for sky in skies])
    wrong = np.array([sky["recognised"] == 1 and sky["error_arcsec"] >= WRONG for sky in skies])
    print("| stars above 5 sigma | skies | recognised | wrongly |\n|---|---|---|---|")
    for low, high in ((20, 10**9), (12, 19), (6, 11), (0, 5)):
        k = (counts >= low) & (counts <= high)
        name = f"{low} or more" if high > 1000 else f"{low} to {high}"
        part = 100 * right[k].sum() / max(k.sum(), 1)
        print(f"| {name} | {k.sum()} | {right[k].sum()} ({part:.1f} %) | {wrong[k].sum()} |")
    print(f"\nThe program's own count differs in {(counts != own).sum()} skies, by at most "
          f"{np.abs(counts - own).max():.0f}.")
    for sky, n, ok in zip(skies, counts, right):
        if n >= 12 and not ok:
            print("not recognised:", f"sky {sky['number']:.0f}, {n} stars, {sky['extracted']:.0f} found")
    error = np.array([sky["error_arcsec"] for sky in skies])[right]
    inside = np.array([sky["squared_sigmas"] for sky in skies])[right]
    print(f"The pole, where recognised: rms {np.sqrt((error**2).mean()):.2f}\", median "
          f"{np.median(error):.2f}\", {100 * (inside < 6.18).mean():.1f} % inside the two-sigma ellipse.")


main()
