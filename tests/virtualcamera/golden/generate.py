# SPDX-License-Identifier: MIT
"""Altitudes and azimuths of stars near the poles by astropy, as a reference for the virtual sky.

    /usr/bin/python3 generate.py > places.csv

Runs without network. UT1 is taken as UTC and polar motion as zero, as in the virtual sky.
Columns: UTC seconds since 1970, site latitude and longitude (degrees, east positive), right
ascension and declination of the star in the catalogue (degrees), altitude and azimuth without
refraction (degrees, azimuth from north through east), the same with refraction at 1010 hPa, 10
degrees Celsius, humidity 0.5 and 0.55 micrometres.
"""
import csv
import os

import astropy.units as u
from astropy.coordinates import AltAz, Distance, EarthLocation, SkyCoord, erfa_astrom
from astropy.time import Time
from astropy.utils import iers

iers.conf.auto_download = False
iers.conf.iers_degraded_accuracy = "ignore"
erfa_astrom.get_polar_motion = lambda time: (0.0, 0.0)

HERE = os.path.dirname(os.path.abspath(__file__))
CATALOGUE = os.path.join(HERE, "..", "..", "..", "astrometry", "pole_stars.csv")
DATES = ["1995-03-01T03:14:15", "2016-05-23T00:00:00", "2024-05-23T12:00:00",
         "2026-11-20T20:00:00", "2030-01-01T18:30:00"]
SITES = [(40.0, 116.0), (69.65, 18.96), (5.0, -170.0), (-35.0, 149.0), (-77.85, 166.67)]
# The template stars, and of each hemisphere the nearest fast one.
WANTED = {+1: [259.23525, 37.954542, 351.75363], -1: [130.52279, 317.19517, 184.69192]}


def chosen_stars():
    with open(CATALOGUE) as file:
        rows = list(csv.DictReader(file))
    stars = {}
    for sign, wanted in WANTED.items():
        half = [r for r in rows if float(r["dec_deg"]) * sign > 0]
        near = [min(half, key=lambda r: abs(float(r["ra_deg"]) - ra) + 90 - abs(float(r["dec_deg"])))
                for ra in wanted]
        fast = max(half, key=lambda r: abs(float(r["pm_ra_cosdec_mas_yr"]))
                   + abs(float(r["pm_dec_mas_yr"])))
        stars[sign] = near + [fast]
    return stars


def observed(star, time, location, pressure):
    sky = SkyCoord(float(star["ra_deg"]) * u.deg, float(star["dec_deg"]) * u.deg,
                   distance=Distance(parallax=float(star["parallax_mas"]) * u.mas),
                   pm_ra_cosdec=float(star["pm_ra_cosdec_mas_yr"]) * u.mas / u.yr,
                   pm_dec=float(star["pm_dec_mas_yr"]) * u.mas / u.yr,
                   radial_velocity=0 * u.km / u.s, obstime=Time("J2000"))
    frame = AltAz(obstime=time, location=location, pressure=pressure * u.hPa,
                  temperature=10 * u.deg_C, relative_humidity=0.5, obswl=0.55 * u.micron)
    place = sky.apply_space_motion(new_obstime=time).transform_to(frame)
    return "%.8f,%.8f" % (place.alt.deg, place.az.deg)


def main():
    stars = chosen_stars()
    for date in DATES:
        time = Time(date, scale="utc")
        time.delta_ut1_utc = 0.0
        for latitude, longitude in SITES:
            location = EarthLocation.from_geodetic(longitude, latitude, 0)
            for star in stars[1 if latitude > 0 else -1]:
                print("%.0f,%g,%g,%s,%s,%s,%s" % (
                    time.unix, latitude, longitude, star["ra_deg"], star["dec_deg"],
                    observed(star, time, location, 0), observed(star, time, location, 1010)))


if __name__ == "__main__":
    main()
