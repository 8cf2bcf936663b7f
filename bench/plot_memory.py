#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Plots the resident memory of a long run as an SVG picture.

usage: plot_memory.py soak.csv memory.svg

The input is the output of `load soak`: seconds, mebibytes, frames.
"""
import csv
import sys

WIDTH, HEIGHT = 760, 300
LEFT, RIGHT, TOP, BOTTOM = 60, 740, 20, 250
GOAL = 160  # megabytes
LIMIT = GOAL * 1e6 / 2**20  # mebibytes


def text(x, y, words, anchor="middle"):
    return f'<text x="{x:.0f}" y="{y:.0f}" text-anchor="{anchor}">{words}</text>'


def line(x1, y1, x2, y2, colour, extra=""):
    return f'<path d="M{x1:.1f} {y1:.1f}L{x2:.1f} {y2:.1f}" stroke="{colour}" {extra}/>'


def picture(seconds, mebibytes):
    last = max(seconds)
    top = max(LIMIT, max(mebibytes)) * 1.1

    def x(s):
        return LEFT + (RIGHT - LEFT) * s / last

    def y(m):
        return BOTTOM - (BOTTOM - TOP) * m / top

    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" '
        f'width="{WIDTH}" height="{HEIGHT}" font-family="sans-serif" font-size="12">',
        "<title>Resident memory while monitoring</title>",
        f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>',
    ]
    for m in range(0, int(top) + 1, 40):
        parts.append(line(LEFT, y(m), RIGHT, y(m), "#ddd"))
        parts.append(text(LEFT - 8, y(m) + 4, m, "end"))
    minutes = int(last) // 60
    for minute in range(0, minutes + 1, max(minutes // 10, 1)):
        parts.append(text(x(60 * minute), BOTTOM + 18, minute))
    parts.append(line(LEFT, y(LIMIT), RIGHT, y(LIMIT), "#c33", 'stroke-dasharray="6 4"'))
    parts.append(text(RIGHT, y(LIMIT) - 6, f"goal: under {GOAL} MB", "end"))
    points = " ".join(f"{x(s):.1f},{y(m):.1f}" for s, m in zip(seconds, mebibytes))
    parts.append(f'<polyline points="{points}" fill="none" stroke="#26c" stroke-width="1.5"/>')
    parts.append(text((LEFT + RIGHT) / 2, BOTTOM + 38, "minutes in monitor mode"))
    parts.append(text(LEFT - 40, TOP - 6, "resident MiB", "start"))
    return "\n".join(parts + ["</svg>", ""])


def slope(xs, ys):
    """Least-squares slope, units of y per unit of x."""
    mean_x, mean_y = sum(xs) / len(xs), sum(ys) / len(ys)
    return sum((x - mean_x) * (y - mean_y) for x, y in zip(xs, ys)) / sum(
        (x - mean_x) ** 2 for x in xs
    )


def main(table, image):
    with open(table) as file:
        rows = [row for row in csv.DictReader(file)]
    seconds = [float(row["seconds"]) for row in rows]
    mebibytes = [float(row["resident_mebibytes"]) for row in rows]
    with open(image, "w") as file:
        file.write(picture(seconds, mebibytes))
    frames = int(rows[-1]["frames"]) - int(rows[0]["frames"])
    half = len(rows) // 2
    print(f"{seconds[-1]:.0f} s, {frames} frames")
    print(f"minimum {min(mebibytes):.1f}, maximum {max(mebibytes):.1f} MiB")
    for name, part in (("first", slice(0, half)), ("second", slice(half, None))):
        print(f"mean of the {name} half: {sum(mebibytes[part]) / len(mebibytes[part]):.2f} MiB")
    print(f"trend: {60 * slope(seconds, mebibytes):+.3f} MiB per minute")


if __name__ == "__main__":
    main(*sys.argv[1:])
