#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The same frames by quorvandel-recognise and by astrometry.net's solve-field, in one run.

    apt-get install astrometry.net astrometry-data-tycho2-10-19 python3-astropy
    build/release/bench/recognitionreport frames 10 /tmp/frames
    /usr/bin/python3 bench/recognition/beside_solve_field.py /tmp/frames [BIN_FOLDER [SETTING]...]

Both take all frames in one run and are told the scale within 10 percent. Times are processor seconds
of the whole processes with all their children, reading of pictures and index files included.
solve-field's solution is in the places of the year 2000 without aberration; the pole of date is
taken there by ERFA (atic13, which turns an apparent place into a catalogue place), and from there
into the picture. A row for each setting (all four if none is named) has speed and agreement of the same
run, with the part of the frames whose two poles are within 3 arcseconds. Settings differ in
solve-field's options: by default it puts the reference pixel of its
distortion at the middle of the stars that it matched first, with --crpix-center at the frame's; with
--sigma 4 it finds more stars; with --no-tweak it fits no distortion.
"""
import csv
import json
import math
import os
import resource
import subprocess
import sys
import tempfile
import warnings

import erfa
import numpy as np
from astropy.io import fits
from astropy.wcs import WCS

warnings.simplefilter("ignore")
SCALE = 30.45
SETTINGS = (("as it comes", []), ("--crpix-center", ["--crpix-center"]),
            ("--sigma 4", ["--sigma", "4"]), ("--no-tweak", ["--no-tweak"]))
LOW, HIGH = str(SCALE / 1.1), str(SCALE * 1.1)


def timed(command):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    seconds = after.ru_utime - before.ru_utime + after.ru_stime - before.ru_stime
    return seconds, result.stdout


def by_solve_field(paths, folder, tweak):
    """Processor seconds, and each frame's solution or None."""
    command = ["solve-field", "--overwrite", "--no-plots", "--scale-units", "arcsecperpix",
               "--scale-low", LOW, "--scale-high", HIGH, "--cpulimit", "120", "--dir", folder,
               "--new-fits", "none", *tweak, *paths]
    spent, _ = timed(command)
    solutions = []
    for path in paths:
        name = os.path.join(folder, os.path.splitext(os.path.basename(path))[0] + ".wcs")
        solutions.append(WCS(fits.getheader(name)) if os.path.exists(name) else None)
    return spent, solutions


def pole_in(solution, seconds_of_1970, south):
    if solution is None:
        return None
    tai = erfa.utctai(2440587.5, seconds_of_1970 / 86400)
    ra, dec, _ = erfa.atic13(0.0, (-1 if south else 1) * math.pi / 2, *erfa.taitt(*tai))
    x, y = solution.all_world2pix(math.degrees(ra), math.degrees(dec), 0)
    return float(x), float(y)


def by_recognise(program, paths, date):
    spent, output = timed([program, "--json", "--date", date, "--scale", LOW, HIGH, *paths])
    found = [json.loads(line) for line in output.splitlines()]
    poles = [(f["pole_x"], f["pole_y"]) if f["recognised"] else None for f in found]
    return spent, poles, [f["seconds"] for f in found]


def off(a, b):
    return math.hypot(a[0] - b[0], a[1] - b[1]) * SCALE if a and b else float("nan")


def main():
    folder = sys.argv[1]
    program = os.path.join(sys.argv[2] if len(sys.argv) > 2 else "build/release/bin",
                           "quorvandel-recognise")
    with open(os.path.join(folder, "truth.csv")) as file:
        rows = list(csv.DictReader(file))
    paths = [os.path.join(folder, row["file"]) for row in rows]
    when = float(rows[0]["date"])
    truth = [(float(row["pole_x"]), float(row["pole_y"])) for row in rows]
    ours, poles, inner = by_recognise(program, paths, str(np.datetime64(int(when), "s")) + "Z")
    n = len(rows)
    print(f"quorvandel-recognise: {ours / n:.3f} s a frame of the whole process, start and reading "
          f"included; extraction and matching alone: median {np.median(inner):.4f} s (by the clock)")
    print("\n| solve-field | processor time a frame | times that of quorvandel-recognise | poles apart: "
          "rms, largest | within 3\" | off the truth, rms: ours, solve-field's | not solved |\n"
          "|---|---|---|---|---|---|---|")
    named = sys.argv[3:]
    for name, tweak in SETTINGS:
        if named and name not in named:
            continue
        with tempfile.TemporaryDirectory() as place:
            spent, solutions = by_solve_field(paths, place, tweak)
        theirs = [pole_in(s, when, row["hemisphere"] == "south") for s, row in zip(solutions, rows)]
        apart = np.array([off(a, b) for a, b in zip(poles, theirs)])
        rms = lambda found: math.sqrt(np.nanmean(np.array([off(a, b) for a, b in zip(found, truth)]) ** 2))
        print(f"| {name} | {spent / n:.2f} s | {spent / ours:.0f} | {math.sqrt(np.nanmean(apart**2)):.2f}\", "
              f"{np.nanmax(apart):.2f}\" | {(apart < 3).sum()} of {n} | {rms(poles):.2f}\", {rms(theirs):.2f}\" "
              f"| {sum(pole is None for pole in theirs)} |")


main()
