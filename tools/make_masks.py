#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Draws the star templates north_mask.png and south_mask.png from the star list.

    tools/make_masks.py [--stars astrometry/pole_stars.csv] [--output resources/images]
                        [--rings geometry/templaterings.inc]

Each star is projected from the gnomonic plane about the pole of EPOCH onto the template by a
similarity (rotation, scale, shift; no reflection). It is the least-squares fit of stars A, B and D to
their template pixels; scale and residuals are printed. The template rotates about star B, so its
ring is drawn exactly on its pixel, less than a pixel from the fitted position.

Positions include proper motion and precession (IAU 1976). Nutation and aberration shift the entire
field equally and are omitted. The relative positions of the stars hardly change: ten years move the
pole by 3.3 arcminutes and distort the plane by less than 0.05 pixel.

The rings' positions and radii are also written as a table for the program.

Pixels: x to the right, y downwards, (0, 0) is the centre of the top-left pixel. Needs numpy and
rsvg-convert (librsvg2-bin).
"""
import argparse
import csv
import math
import pathlib
import subprocess
import tempfile

import numpy as np

ROOT = pathlib.Path(__file__).resolve().parent.parent
EPOCH = 2024.5  # Julian year, the middle of the last epoch of the star angles
FAINTEST = 8.0  # V of the faintest ring: such a star is still visible at 500 ms
ARCSEC = math.radians(1 / 3600)

# Per hemisphere: size of the picture; for A, B and D the catalogue position (degrees, J2000) that
# identifies the star in the list, and its template pixel. `sense` is the direction in which right
# ascension increases on the screen: +1 clockwise, -1 counter-clockwise.
TEMPLATES = {
    "north": {
        "size": (800, 800),
        "sense": 1,
        "stars": {
            "A": ((259.23525, 89.03772), (445, 218)),
            "B": ((37.95454, 89.26411), (400, 400)),
            "D": ((351.75363, 87.30750), (648, 495)),
        },
    },
    "south": {
        "size": (800, 674),
        "sense": -1,
        "stars": {
            "A": ((130.52279, -89.46053), (227, 405)),
            "B": ((317.19517, -88.95650), (400, 337)),
            "D": ((184.69192, -88.41492), (228, 563)),
        },
    },
}

# Lines of the letters in a box 0.8 wide and 1 high, y downwards.
LETTERS = {
    "A": "M0 1 L0.4 0 L0.8 1 M0.14 0.66 H0.66",
    "B": "M0.1 0 V1 H0.45 C0.83 1 0.83 0.48 0.45 0.48 H0.1 H0.42 C0.75 0.48 0.75 0 0.42 0 Z",
    "D": "M0.1 0 V1 H0.32 C0.9 1 0.9 0 0.32 0 Z",
}
PALE = "#f2e6d2"
ACCENT = "#ffab40"


def read_stars(path):
    """The star list as arrays: right ascension and declination (radians, J2000), proper motions
    (radians per year, the first multiplied by cos(dec)) and V magnitude."""
    with open(path, encoding="utf-8", newline="") as file:
        rows = list(csv.DictReader(line for line in file if not line.startswith("#")))
    column = lambda name: np.array([float(row[name] or 0) for row in rows])
    return {
        "ra": np.radians(column("ra_deg")),
        "dec": np.radians(column("dec_deg")),
        "pm_ra": column("pm_ra_cosdec_mas_yr") * ARCSEC / 1000,
        "pm_dec": column("pm_dec_mas_yr") * ARCSEC / 1000,
        "v": column("v_mag"),
    }


def precession(year):
    """Rotation matrix from the mean equator of J2000 to that of `year` (Lieske et al. 1977)."""
    t = (year - 2000) / 100
    zeta = (2306.2181 * t + 0.30188 * t**2 + 0.017998 * t**3) * ARCSEC
    z = (2306.2181 * t + 1.09468 * t**2 + 0.018203 * t**3) * ARCSEC
    theta = (2004.3109 * t - 0.42665 * t**2 - 0.041833 * t**3) * ARCSEC

    def about_z(a):
        return np.array([[math.cos(a), math.sin(a), 0], [-math.sin(a), math.cos(a), 0], [0, 0, 1]])

    about_y = np.array([[math.cos(theta), 0, -math.sin(theta)], [0, 1, 0],
                        [math.sin(theta), 0, math.cos(theta)]])
    return about_z(-z) @ about_y @ about_z(-zeta)


def unit_vectors(stars, year):
    """Directions to the stars at `year`, one row per star, mean equator of that year."""
    ra, dec = stars["ra"], stars["dec"]
    position = np.stack([np.cos(dec) * np.cos(ra), np.cos(dec) * np.sin(ra), np.sin(dec)], 1)
    east = np.stack([-np.sin(ra), np.cos(ra), 0 * ra], 1)
    north = np.stack([-np.sin(dec) * np.cos(ra), -np.sin(dec) * np.sin(ra), np.cos(dec)], 1)
    moved = position + (year - 2000) * (stars["pm_ra"][:, None] * east
                                        + stars["pm_dec"][:, None] * north)
    moved /= np.linalg.norm(moved, axis=1)[:, None]
    return moved @ precession(year).T


def plane(vectors, north, sense):
    """Gnomonic plane about the pole as complex numbers (radians): x to the right, y downwards,
    right ascension increasing clockwise (`sense` +1) or counter-clockwise (-1) on the screen."""
    towards = vectors[:, 2] if north else -vectors[:, 2]
    return (vectors[:, 0] + 1j * sense * vectors[:, 1]) / towards


def fit(points, pixels):
    """Least-squares similarity pixel = turn * point + shift for all given stars."""
    mean_point, mean_pixel = points.mean(), pixels.mean()
    p, q = points - mean_point, pixels - mean_pixel
    turn = np.vdot(p, q) / np.vdot(p, p)
    return turn, mean_pixel - turn * mean_point


def find(stars, place):
    """Index of the brightest star within 20 arcseconds of `place` (degrees, J2000)."""
    ra, dec = np.radians(place)
    away = np.hypot((stars["ra"] - ra) * np.cos(dec), stars["dec"] - dec)
    near = np.flatnonzero(away < 20 * ARCSEC)
    if near.size == 0:
        raise SystemExit(f"no star in the list at {place}")
    return near[np.argmin(stars["v"][near])]


def ring_radius(v):
    """Radius in pixels of the ring of a star of magnitude `v`, larger than the star's image."""
    return 6.0 + 1.0 * (FAINTEST - v)


def ring(x, y, radius, colour, width):
    """A light ring with dark edges."""
    circle = f'<circle cx="{x + 0.5:.3f}" cy="{y + 0.5:.3f}" r="{radius:.2f}" fill="none"'
    return (f'{circle} stroke="#000000" stroke-opacity="0.7" stroke-width="{width + 2.2}"/>\n'
            f'{circle} stroke="{colour}" stroke-width="{width}"/>\n')


def strokes(path, colour, width, scale=1.0, shift=(0.0, 0.0)):
    """A light line with dark edges; the path is scaled, then shifted; widths are in pixels."""
    start = (f'<path d="{path}" fill="none" stroke-linecap="round" stroke-linejoin="round" '
             f'transform="translate({shift[0]:.2f} {shift[1]:.2f}) scale({scale})"')
    dark, light = (width + 2.2) / scale, width / scale
    return (f'{start} stroke="#000000" stroke-opacity="0.7" stroke-width="{dark:.3f}"/>\n'
            f'{start} stroke="{colour}" stroke-width="{light:.3f}"/>\n')


def letter(name, x, y, size=10):
    """The star's letter, centred at pixel (x, y); drawn as lines, so no font is needed."""
    return strokes(LETTERS[name], ACCENT, 1.5, size, (x + 0.5 - size * 0.4, y + 0.5 - size / 2))


def ticks(x, y, inner, outer):
    """Four short lines outside a ring, on the diagonals."""
    k = math.sqrt(0.5)
    lines = (f"M{x + 0.5 + sx * k * inner:.2f} {y + 0.5 + sy * k * inner:.2f} "
             f"L{x + 0.5 + sx * k * outer:.2f} {y + 0.5 + sy * k * outer:.2f}"
             for sx in (-1, 1) for sy in (-1, 1))
    return strokes(" ".join(lines), ACCENT, 1.4)


def plain_stars(size, pixels, magnitudes, named):
    """Indices of the stars other than A, B and D whose rings are entirely inside the picture,
    faintest first."""
    width, height = size
    for number in np.argsort(-magnitudes):
        x, y, v = pixels[number].real, pixels[number].imag, magnitudes[number]
        radius = ring_radius(v)
        inside = radius + 2 < x < width - radius - 3 and radius + 2 < y < height - radius - 3
        if v <= FAINTEST and inside and number not in named.values():
            yield number


def drawing(size, pixels, magnitudes, named):
    """The template as SVG text. `named` contains the indices of A, B and D."""
    width, height = size
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
             f'viewBox="0 0 {width} {height}">\n']
    for number in plain_stars(size, pixels, magnitudes, named):
        x, y, v = pixels[number].real, pixels[number].imag, magnitudes[number]
        parts.append(ring(x, y, ring_radius(v), PALE, 1.5))
    for name, number in named.items():
        x, y, radius = pixels[number].real, pixels[number].imag, ring_radius(magnitudes[number])
        parts.append(ring(x, y, radius, ACCENT, 1.8))
        if name == "B":
            radius += 5
            parts.append(ring(x, y, radius, ACCENT, 1.8))
        parts.append(ticks(x, y, radius + 2, radius + 7))
        parts.append(letter(name, x + radius + 12, y))
    parts.append("</svg>\n")
    return "".join(parts)


def ring_table(name, numbers, pixels, magnitudes):
    """The rings as a C++ array: position and radius in pixels, brightest first."""
    rows = "".join(f"    {{{pixels[n].real:.1f}, {pixels[n].imag:.1f}, "
                   f"{ring_radius(magnitudes[n]):.1f}}},\n"
                   for n in sorted(numbers, key=lambda n: magnitudes[n]))
    return f"constexpr TemplateRing {name}Rings[] = {{\n{rows}}};\n"


def make(name, template, stars, folder):
    """Writes one template, prints the fit's residuals and returns the table of rings."""
    towards = plane(unit_vectors(stars, EPOCH), name == "north", template["sense"])
    near = np.abs(towards) < math.radians(8)
    near &= (stars["dec"] > 0) == (name == "north")
    named = {key: find(stars, place) for key, (place, _) in template["stars"].items()}
    points = towards[list(named.values())]
    targets = np.array([complex(*pixel) for _, pixel in template["stars"].values()])

    turn, shift = fit(points, targets)
    residuals = np.abs(turn * points + shift - targets)
    print(f"{name}: {1 / abs(turn) / ARCSEC:.3f} arcsec per pixel, residuals "
          + ", ".join(f"{key} {r:.2f} px" for key, r in zip(named, residuals)))

    pixels = turn * towards + shift
    pixels[named["B"]] = complex(*template["stars"]["B"][1])
    pixels[~near] = complex(math.nan, math.nan)
    svg = drawing(template["size"], pixels, stars["v"], named)
    with tempfile.NamedTemporaryFile("w", suffix=".svg") as file:
        file.write(svg)
        file.flush()
        subprocess.run(["rsvg-convert", "--output", folder / f"{name}_mask.png", file.name],
                       check=True)
    rings = svg.count("<circle") // 2 - 1  # B has two
    print(f"{name}: {rings} stars to V = {FAINTEST}")
    numbers = [*named.values(), *plain_stars(template["size"], pixels, stars["v"], named)]
    return ring_table(name, numbers, pixels, stars["v"])


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--stars", type=pathlib.Path,
                        default=ROOT / "astrometry/pole_stars.csv")
    parser.add_argument("--output", type=pathlib.Path, default=ROOT / "resources/images")
    parser.add_argument("--rings", type=pathlib.Path,
                        default=ROOT / "geometry/templaterings.inc")
    arguments = parser.parse_args()
    stars = read_stars(arguments.stars)
    tables = [make(name, template, stars, arguments.output)
              for name, template in TEMPLATES.items()]
    arguments.rings.write_text("// SPDX-License-Identifier: MIT\n"
                               "// The rings of the templates; written by tools/make_masks.py.\n"
                               + "".join(tables), encoding="utf-8")


if __name__ == "__main__":
    main()
