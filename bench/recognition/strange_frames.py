#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Pictures without the pole's sky, drawn by numpy alone: is anything recognised in them?

    /usr/bin/python3 bench/recognition/strange_frames.py 400 [FIRST] [BIN_FOLDER]

Nothing here is shared with the program or with falseframes.cpp: stars are Moffat profiles (Moffat 1969,
A&A 3, 455) and their numbers rise with magnitude as in the sky; hills, clouds and leaves are noise with
a power law for a spectrum. Picture number i is the same on every run. Kinds and formats take turns:
random stars, strewn evenly, in clusters or as a lattice with errors; country by day, a town at night;
each of 8 and 16 bits, grey and in colour. quorvandel-recognise searches each blind. Prints the table of
docs/recognition.md; the exit status is 1 if anything was recognised.
"""
import json
import os
import subprocess
import sys
import tempfile

import cv2
import numpy as np

KINDS = ("even stars", "clustered stars", "stars in a lattice", "country by day", "town at night")
FORMATS = ((8, 1), (8, 3), (16, 1), (16, 3))
BATCH = 40
LEAST_STARS = 6  # fewer are not searched


def cloud(rng, height, width, slope):
    """Noise with a power-law spectrum, mean 0, standard deviation 1."""
    fy, fx = np.fft.fftfreq(height)[:, None], np.fft.rfftfreq(width)[None, :]
    radius = np.hypot(fy, fx)
    radius[0, 0] = 1
    spectrum = np.fft.rfft2(rng.normal(size=(height, width))) * radius ** -slope
    spectrum[0, 0] = 0
    picture = np.fft.irfft2(spectrum, s=(height, width))
    return picture / picture.std()


def add_light(picture, x, y, flux, fwhm, beta):
    """A Moffat profile; its flux is spread over the pixels' centres."""
    core = fwhm / (2 * np.sqrt(2 ** (1 / beta) - 1))
    reach = int(6 * fwhm) + 2
    x0, x1 = max(int(x) - reach, 0), min(int(x) + reach + 1, picture.shape[1])
    y0, y1 = max(int(y) - reach, 0), min(int(y) + reach + 1, picture.shape[0])
    dy, dx = np.arange(y0, y1)[:, None] - y, np.arange(x0, x1)[None, :] - x
    profile = (beta - 1) / (np.pi * core**2) * (1 + (dx**2 + dy**2) / core**2) ** -beta
    picture[y0:y1, x0:x1] += flux * profile


def star_places(rng, kind, count, height, width):
    size = np.array([width - 1, height - 1])
    if kind == "even stars":
        return rng.uniform(0, size, (count, 2))
    if kind == "clustered stars":
        centres = rng.uniform(0, size, (rng.integers(1, 6), 2))
        spread = rng.uniform(0.03, 0.25) * size.mean()
        return centres[rng.integers(len(centres), size=count)] + rng.normal(0, spread, (count, 2))
    across = int(np.ceil(np.sqrt(count)))
    lattice = np.stack(np.meshgrid(np.arange(across), np.arange(across)), -1).reshape(-1, 2)[:count]
    angle, step = rng.uniform(0, np.pi), size.mean() / across * rng.uniform(0.6, 1.2)
    turn = np.array([[np.cos(angle), -np.sin(angle)], [np.sin(angle), np.cos(angle)]])
    return ((lattice - across / 2) * step) @ turn + size / 2 + rng.normal(
        0, step * 10 ** rng.uniform(-3, -0.5), (count, 2))


def stars(rng, kind, height, width):
    noise = rng.uniform(1.0, 4.0)
    picture = rng.uniform(8, 60) + rng.normal(0, noise, (height, width))
    picture += rng.uniform(0, 15) * np.linspace(0, 1, width)
    fwhm, beta = rng.uniform(1.6, 5.0), rng.uniform(2.5, 4.5)
    faintest = 5 * noise * 1.5 * fwhm  # flux at about 5 sigma
    for x, y in star_places(rng, kind, rng.integers(8, 260), height, width):
        if 0 <= x < width and 0 <= y < height:
            brighter = -np.log10(rng.uniform(1e-5, 1)) / 0.5  # magnitudes; 0.5 dex a magnitude
            add_light(picture, x, y, faintest * 10 ** (0.4 * brighter), fwhm, beta)
    return picture


def country(rng, height, width):
    picture = rng.uniform(90, 200) + rng.uniform(2, 25) * cloud(rng, height, width, 1.8)
    x = np.arange(width)
    for level in np.sort(rng.uniform(0.25, 1.0, rng.integers(1, 5))):
        hills = level * height + 0.05 * height * cloud(rng, 2, width, 1.2)[0]
        ground = rng.uniform(20, 150) + rng.uniform(3, 40) * cloud(rng, height, width, rng.uniform(0.6, 1.6))
        picture = np.where(np.arange(height)[:, None] > hills[None, :], ground, picture)
    for _ in range(rng.integers(0, 8)):  # wires
        y = rng.uniform(0, height) + rng.uniform(-0.2, 0.2) * x + 1e-4 * rng.normal() * (x - width / 2) ** 2
        inside = (y >= 0) & (y < height)
        picture[y[inside].astype(int), x[inside]] = rng.uniform(0, 255)
    return picture + rng.normal(0, rng.uniform(0.5, 4), (height, width))


def town(rng, height, width):
    noise = rng.uniform(0.8, 3)
    picture = rng.uniform(4, 40) + 3 * cloud(rng, height, width, 1.6)
    horizon = int(rng.uniform(0.2, 0.8) * height)
    for _ in range(rng.integers(2, 14)):  # houses with lit windows
        left, wide = rng.integers(0, width), rng.integers(40, 260)
        top = rng.integers(max(horizon - 250, 0), horizon + 1)
        picture[top:, left : left + wide] = rng.uniform(2, 30)
        pitch, pane = rng.integers(10, 40), rng.integers(2, 10)
        for y in range(top + 4, height - pane, int(pitch)):
            for x in range(left + 4, min(left + wide, width) - pane, int(pitch)):
                if rng.uniform() < 0.4:
                    picture[y : y + pane, x : x + pane] = rng.uniform(40, 300)
    vanish = rng.uniform([0, horizon - 30], [width, horizon + 30])
    start = rng.uniform([0, height * 0.7], [width, height])
    fwhm = rng.uniform(1.5, 6)
    for i in range(rng.integers(0, 60)):  # street lamps in perspective, and others anywhere
        place = vanish + (start - vanish) / (1 + 0.4 * i) if i % 3 else rng.uniform(0, [width, height])
        if 0 <= place[0] < width and 0 <= place[1] < height:
            add_light(picture, *place, 10 ** rng.uniform(2, 4.5), fwhm, 3.0)
    return picture + rng.normal(0, noise, (height, width))


def frame(number):
    """Kind, format and pixels of a picture."""
    rng = np.random.default_rng([20261122, number])
    kind = KINDS[number % len(KINDS)]
    bits, channels = FORMATS[number // len(KINDS) % len(FORMATS)]
    height, width = ((480, 640), (768, 1024), (960, 1280))[rng.integers(3)]
    grey = (country(rng, height, width) if kind == "country by day" else
            town(rng, height, width) if kind == "town at night" else stars(rng, kind, height, width))
    planes = [grey]
    if channels == 3:  # each with its own tint and noise
        planes = [grey * rng.uniform(0.6, 1.3) + rng.normal(0, 1, grey.shape) for _ in range(3)]
    scale, top = (1, 255) if bits == 8 else (rng.uniform(40, 256), 65535)
    values = np.clip(np.floor(np.stack(planes, -1) * scale + 0.5), 0, top)
    return kind, (bits, channels), values.astype(np.uint8 if bits == 8 else np.uint16)


def recognised(program, numbers, folder):
    """Of each picture: kind, format, how many stars were found, whether it was recognised."""
    paths, known = [], []
    for number in numbers:
        kind, form, pixels = frame(number)
        paths.append(os.path.join(folder, f"{number}.tif"))
        known.append((number, kind, form))
        cv2.imwrite(paths[-1], pixels, [cv2.IMWRITE_TIFF_COMPRESSION, 1])
    output = subprocess.run([program, "--json", "--date", "2026-11-22", *paths],
                            stdout=subprocess.PIPE, check=False).stdout
    results = [json.loads(line) for line in output.splitlines()]
    assert len(results) == len(paths)
    for path in paths:
        os.remove(path)
    return [(*k, r["extracted"], r["recognised"]) for k, r in zip(known, results)]


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 400
    first = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    program = os.path.join(sys.argv[3] if len(sys.argv) > 3 else "build/release/bin",
                           "quorvandel-recognise")
    results = []
    with tempfile.TemporaryDirectory() as folder:
        for start in range(first, first + count, BATCH):
            numbers = range(start, min(start + BATCH, first + count))
            results += recognised(program, numbers, folder)
    print("| pictures | number | of 16 bits | in colour | with stars enough | recognised |\n"
          "|---|---|---|---|---|---|")
    for kind in (*KINDS, "all"):
        rows = [r for r in results if kind in (r[1], "all")]
        print(f"| {kind} | {len(rows)} | {sum(r[2][0] == 16 for r in rows)} "
              f"| {sum(r[2][1] == 3 for r in rows)} | {sum(r[3] >= LEAST_STARS for r in rows)} "
              f"| {sum(r[4] for r in rows)} |")
    for r in results:
        if r[4]:
            print("recognised: picture", r[0], r[1], file=sys.stderr)
    return int(any(r[4] for r in results))


if __name__ == "__main__":
    sys.exit(main())
