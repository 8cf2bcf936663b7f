#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Which numbers should the geometry give? An independent implementation in numpy and OpenCV.

Run in this folder:  /usr/bin/python3 generate.py
Writes the .csv files and the .png frames beside it; the same numbers on every run.

Where a second method exists it is used: the pole is found by a step from star A along a rotated
direction instead of intersecting circles, the circle's centre solves a linear system, rotations are
complex products and the median is a sort of nine shifted pictures.
"""
import cmath
import configparser
import csv
import math
import pathlib

import cv2
import numpy as np

HERE = pathlib.Path(__file__).resolve().parent
STAR_DATA = HERE.parents[2] / "resources" / "starData"
YEARS = range(2016, 2025)


def write(name, header, rows):
    with open(HERE / f"{name}.csv", "w", newline="") as file:
        writer = csv.writer(file, lineterminator="\n")
        writer.writerow(header)
        for row in rows:
            writer.writerow([v if isinstance(v, str) else repr(float(v)) for v in row])


# --- plane geometry -------------------------------------------------------------------------

def circle(p1, p2, p3):
    """Centre and integer radius: equal distance from p1 and p2, and from p1 and p3."""
    matrix = 2.0 * np.array([p2 - p1, p3 - p1])
    side = np.array([p2 @ p2 - p1 @ p1, p3 @ p3 - p1 @ p1])
    centre = np.linalg.solve(matrix, side)
    return centre, math.trunc(np.hypot(*(centre - p1)))


def turned(point, centre, radians):
    """Positive radians are clockwise on a screen whose y runs downwards."""
    turn = (complex(*point) - complex(*centre)) * cmath.exp(1j * radians)
    return np.array([turn.real, turn.imag]) + centre


def pole_candidates(a, alpha, b, beta):
    """Both corners P of the triangle, by a step from A towards P."""
    length = np.hypot(*(b - a)) * math.sin(math.radians(beta)) / math.sin(
        math.radians(180.0 - alpha - beta))
    along = (b - a) / np.hypot(*(b - a))
    return [turned(a + along * length, a, sign * math.radians(alpha)) for sign in (1, -1)]


def angle_between(u, v):
    return abs(math.degrees(math.atan2(u[0] * v[1] - u[1] * v[0], u @ v)))


def pole_by_star(a, alpha, b, beta, d, dbp):
    return min(pole_candidates(a, alpha, b, beta),
               key=lambda p: abs(angle_between(d - b, p - b) - dbp))


def pole_by_reference(a, alpha, b, beta, reference):
    return min(pole_candidates(a, alpha, b, beta), key=lambda p: np.hypot(*(p - reference)))


def refraction(value, h, pressure, temperature):
    minutes = max(0.0, 1.0 / math.tan(math.radians(h + 7.31 / (h + 4.4))))
    if temperature != -273.0:
        minutes *= pressure / 101.0 * 283.0 / (temperature + 273.0)
    return value - minutes


def plane_files(rng):
    rows = []
    while len(rows) < 60:
        centre = rng.uniform([0, 0], [1280, 960])
        radius = rng.uniform(5, 600)
        start, step = rng.uniform(0, 2 * math.pi), rng.uniform(0.3, 1.2)
        points = [np.round(centre + radius * np.array([math.cos(t), math.sin(t)]), 6)
                  for t in (start, start + step, start + 2 * step)]
        if abs(points[0][1] - points[1][1]) < 1 or abs(points[1][1] - points[2][1]) < 1:
            continue
        found, whole = circle(*points)
        rows.append([f"circle{len(rows)}", *np.concatenate(points), *found, whole])
    write("circle", "case x1 y1 x2 y2 x3 y3 centreX centreY radius".split(), rows)

    rows = []
    for i in range(60):
        angle = rng.uniform(-720, 720)
        point, centre = rng.uniform(-2000, 2000, 2), rng.uniform(-2000, 2000, 2)
        rows.append([f"turn{i}", angle, *point, *centre,
                     *turned(point, centre, math.radians(angle)), *turned(point, centre, -angle)])
    write("rotate", "case angle x y cx cy byDegreesX byDegreesY byRadiansX byRadiansY".split(),
          rows)

    rows = []
    for i in range(60):
        h, pressure, temperature = rng.uniform(1, 90), rng.uniform(5, 110), rng.uniform(-60, 50)
        if i < 3:
            temperature = -273.0
        rows.append([f"refraction{i}", 400.25, h, pressure, temperature,
                     refraction(400.25, h, pressure, temperature)])
    write("refraction", "case value h pressure temperature corrected".split(), rows)


def pole_files(rng):
    rows = []
    while len(rows) < 120:
        a, b, reference = (rng.uniform([0, 0], [1280, 960]) for _ in range(3))
        alpha, beta = rng.uniform(5, 150), rng.uniform(5, 150)
        if alpha + beta > 170 or abs(a[0] - b[0]) < 20:
            continue
        near, far = sorted(np.hypot(*(p - reference)) for p in pole_candidates(a, alpha, b, beta))
        if far - near < 1:
            continue
        rows.append([f"pole{len(rows)}", *a, alpha, *b, beta, *reference,
                     *pole_by_reference(a, alpha, b, beta, reference)])
    write("pole", "case x1 y1 angleA x2 y2 angleB xr yr poleX poleY".split(), rows)

    rows = []
    for hemisphere, letter in (("north", "N"), ("south", "S")):
        for year in YEARS:
            a, b, d, angles = star_data(letter, year)
            rows.append([f"{hemisphere}{year}", *a, angles["BAP"], *b, angles["ABP"], *d,
                         angles["DBP"],
                         *pole_by_star(a, angles["BAP"], b, angles["ABP"], d, angles["DBP"])])
    write("templatepole", "case x1 y1 angleA x2 y2 angleB xd yd angleDBP poleX poleY".split(), rows)


def star_data(letter, year):
    parser = configparser.ConfigParser()
    parser.optionxform = str
    parser.read_string("[stars]\n" + (STAR_DATA / f"{letter}StarPosData.ini").read_text())
    values = parser["stars"]
    points = [np.array([float(values[f"{s}_X_Mask"]), float(values[f"{s}_Y_Mask"])]) for s in "ABD"]
    angles = {n: int(values[f"{n}_{year}0523"]) / 1e14 for n in ("BAP", "ABP", "DBP")}
    return *points, angles


def overlay_file(rng):
    """Values that follow from the template's angle, for the epoch of 2024."""
    rows = []
    for hemisphere, letter in (("north", "N"), ("south", "S")):
        a, b, d, angles = star_data(letter, 2024)
        template_pole = pole_by_star(a, angles["BAP"], b, angles["ABP"], d, angles["DBP"])
        for degrees in (0, 1, 45, 90, 133, 180, 270, 359, 360):
            polaris, axis = rng.uniform([0, 0], [1280, 960]), rng.uniform([0, 0], [1280, 960])
            pole = turned(template_pole, b, math.radians(degrees)) + (polaris - b)
            star_a = turned(a, b, math.radians(degrees)) + (polaris - b)
            rows.append([f"{hemisphere}{degrees}", degrees, *polaris, *axis, *pole,
                         *(polaris - (pole - axis)), *star_a])
    write("overlay", "case degrees polarisX polarisY axisX axisY poleX poleY targetX targetY "
          "starAX starAY".split(), rows)


# --- star positions -------------------------------------------------------------------------

def median3(frame):
    padded = np.pad(frame, [(1, 1), (1, 1)] + [(0, 0)] * (frame.ndim - 2), mode="edge")
    rows, columns = frame.shape[:2]
    shifts = [padded[j:j + rows, i:i + columns] for j in range(3) for i in range(3)]
    filtered = np.sort(np.stack(shifts), axis=0)[4]
    assert np.array_equal(filtered, cv2.medianBlur(frame, 3))
    return filtered


def window(frame, x, y, side):
    left, top = math.trunc(x - side / 2), math.trunc(y - side / 2)
    if left < 0 or top < 0 or left + side > frame.shape[1] or top + side > frame.shape[0]:
        return None, left, top
    return median3(frame)[top:top + side, left:left + side], left, top


def grey(picture):
    return picture if picture.ndim == 2 else cv2.cvtColor(np.ascontiguousarray(picture), 7)


@np.errstate(invalid="ignore")
def gravity_centre(frame, x, y):
    """A black window gives coordinates that are not numbers."""
    cut, left, top = window(frame, x, y, 20)
    if cut is None:
        return -1, x, y
    light = grey(cut)
    peak, mean = np.float64(light.max()), light.mean(dtype=np.float64)
    if peak / mean < 2.5:
        return -1, x, y
    threshold = mean + 0.3 * (peak - mean)
    excess = np.clip(np.rint(light.astype(np.float32) - np.float32(threshold)), 0, 255)
    assert np.array_equal(excess, cv2.subtract(np.ascontiguousarray(light), (threshold, 0, 0, 0)))
    ys, xs = np.mgrid[0:20, 0:20]
    return (0, (excess * xs).sum(dtype=np.float64) / excess.sum(dtype=np.float64) + left,
            (excess * ys).sum(dtype=np.float64) / excess.sum(dtype=np.float64) + top)


def precise_position(frame, x, y):
    cut, left, top = window(frame, x, y, 40)
    if cut is None or not (cut if cut.ndim == 2 else cut[..., 0]).any():
        return -1, x, y
    py, px = np.unravel_index(np.argmax(grey(cut)), cut.shape[:2])
    status, rx, ry = gravity_centre(frame, float(px + left), float(py + top))
    return (0, rx, ry) if status == 0 else (0, float(px + left), float(py + top))


def draw(rng, stars, background, noise, size=(96, 72), colour=None):
    """Gaussian stars of 2.5 pixels full width at half maximum; (x, y, peak) each."""
    columns, rows = size
    ys, xs = np.mgrid[0:rows, 0:columns]
    sigma = 2.5 / 2.3548
    light = sum(peak * np.exp(-((xs - x) ** 2 + (ys - y) ** 2) / (2 * sigma ** 2))
                for x, y, peak in stars)
    if colour is not None:
        light = np.asarray(light)[..., None] * np.array(colour)
    shape = (rows, columns) if colour is None else (rows, columns, 3)
    picture = background + light + noise * rng.standard_normal(shape)
    return np.clip(np.rint(picture), 0, 255).astype(np.uint8)


def star_files(rng):
    frames = {
        "bright": draw(rng, [(48.3, 36.7, 200)], 8, 2),
        "saturated": draw(rng, [(45.5, 33.25, 900)], 12, 3),
        "faint": draw(rng, [(50.2, 35.4, 22)], 20, 1),
        "pair": draw(rng, [(44.1, 34.6, 120), (52.8, 38.2, 160)], 5, 2),
        "edges": draw(rng, [(12.4, 11.6, 180), (86.0, 61.5, 180), (3.2, 40.1, 220)], 6, 2),
        "noisefree": draw(rng, [(47.75, 36.25, 150)], 0, 0),
        "colour": draw(rng, [(48.6, 36.1, 220)], 7, 2, colour=(1.0, 0.8, 0.4)),
        "twocolours": draw(rng, [(42.0, 30.5, 200)], 4, 1, colour=(1.0, 0.1, 0.1))
        + draw(rng, [(55.5, 41.0, 200)], 0, 0, colour=(0.0, 0.9, 0.2)),
    }
    places = [(48.0, 36.0), (44.5, 31.75), (56.9, 42.2), (50.0, 52.0), (20.0, 20.0), (76.0, 52.0),
              (20.9, 19.99), (10.0, 10.0), (86.0, 62.0), (86.99, 62.99), (9.5, 9.5), (8.9, 30.0),
              (87.0, 30.0), (76.99, 30.0), (77.0, 30.0), (19.5, 35.0)]
    rows = []
    for name, frame in frames.items():
        cv2.imwrite(str(HERE / f"{name}.png"), frame if frame.ndim == 2 else frame[..., ::-1])
        for x, y in places:
            for routine, function in (("centroid", gravity_centre), ("precise", precise_position)):
                status, rx, ry = function(frame, x, y)
                rows.append([f"{name}:{routine}:{x}:{y}", x, y, status, rx, ry])
    write("starpositions", "case x y status resultX resultY".split(), rows)


if __name__ == "__main__":
    plane_files(np.random.default_rng(20160523))
    pole_files(np.random.default_rng(20240523))
    overlay_file(np.random.default_rng(1))
    star_files(np.random.default_rng(2))
