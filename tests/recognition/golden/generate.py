#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Frames whose stars are known: where they are, how bright, and how well they can be measured at all.

Run in this folder:  /usr/bin/python3 generate.py
Writes the .png frames and stars.csv; the same on every run. Nothing here is shared with the program:
a star's light in a pixel is a sum over 9 x 9 points of the pixel, not a difference of error functions.

stars.csv: frame, x, y (pixels, (0, 0) the centre of the top-left pixel), flux (values of the frame,
mean of the channels), fluxsigma (its standard error for a known width), snr (of the best weighting,
background noise alone), sigma (least standard error of x or y by the Cramer-Rao bound, pixels; the
photons' own noise is counted), saturated (1: more than five pixels at full scale; 0: none near it; or
nearly).
"""
import math

import cv2
import numpy as np

WIDTH, HEIGHT = 400, 300
SUB = 9
rng = np.random.default_rng(20261121)


def star_image(x, y, sigma, motion=0.0, angle=0.0):
    """Shares of a star's light in all pixels; motion: length of its trail, pixels."""
    radius = int(math.ceil(6 * sigma + motion / 2)) + 1
    x0, y0 = int(round(x)) - radius, int(round(y)) - radius
    n = 2 * radius + 1
    offsets = (np.arange(n * SUB) + 0.5) / SUB - 0.5
    out = np.zeros((n, n))
    steps = 1 if motion == 0 else int(4 * motion) + 1
    for t in np.linspace(-0.5, 0.5, steps) if steps > 1 else [0.0]:
        dx = np.exp(-((offsets + x0 - x - t * motion * math.cos(angle)) ** 2) / (2 * sigma**2))
        dy = np.exp(-((offsets + y0 - y - t * motion * math.sin(angle)) ** 2) / (2 * sigma**2))
        column = dx.reshape(n, SUB).sum(1)
        row = dy.reshape(n, SUB).sum(1)
        out += np.outer(row, column)
    return x0, y0, out / (SUB**2 * 2 * math.pi * sigma**2 * steps)


def add(image, x0, y0, part):
    h, w = image.shape
    top, left = max(y0, 0), max(x0, 0)
    bottom, right = min(y0 + part.shape[0], h), min(x0 + part.shape[1], w)
    if top < bottom and left < right:
        image[top:bottom, left:right] += part[top - y0 : bottom - y0, left - x0 : right - x0]


def places(n, apart, margin=14):
    found = []
    while len(found) < n:
        p = rng.uniform([margin, margin], [WIDTH - 1 - margin, HEIGHT - 1 - margin])
        if all(math.hypot(*(p - q)) > apart for q in found):
            found.append(p)
    return found


def bound(share, flux, variance):
    """The Cramer-Rao bound of x for known flux and background."""
    slope = np.gradient(share, axis=1) * flux
    return 1 / math.sqrt((slope**2 / variance).sum())


class Frame:
    def __init__(self, name, fwhm=2.5, noise=2.0, sky=20.0, gain=1.5, full=255, channels=1, count=40,
                 snr=(5.0, 300.0), motion=0.0, angle=0.5):
        self.name, self.noise, self.gain, self.full, self.channels = name, noise, gain, full, channels
        self.sigma = fwhm / 2.3548200450309493
        self.light = np.zeros((HEIGHT, WIDTH))
        self.sky = np.full((HEIGHT, WIDTH), sky, float)
        self.rows, self.colours = [], []
        flat = math.sqrt(noise**2 + 1 / 12)
        for i, (x, y) in enumerate(places(count, 9 * self.sigma + 12)):
            wanted = snr[0] * (snr[1] / snr[0]) ** (i / max(count - 1, 1))
            x0, y0, share = star_image(x, y, self.sigma, motion, angle)
            effective = 1 / math.sqrt((share**2).sum())  # pixels, root of the area that counts
            flux = wanted * flat * effective / math.sqrt(channels)
            add(self.light, x0, y0, flux * share)
            variance = flat**2 / channels + flux * share / gain
            # Weighting with the star's own shape; a third of the light counts squared.
            scatter = math.sqrt((flux / wanted) ** 2 + 4 / 3 * flux / gain / channels)
            self.rows.append([name, x, y, flux, scatter, wanted, bound(share, flux, variance)])

    def write(self, change=None):
        picture = []
        for c in range(self.channels):
            signal = self.light * (0.7, 1.0, 1.3)[c] if self.channels == 3 else self.light
            noisy = self.sky + signal + rng.normal(size=signal.shape) * np.sqrt(
                self.noise**2 + signal / self.gain)
            picture.append(noisy)
        picture = np.stack(picture, -1)
        if change:
            change(picture)
        top = 65535 if self.full > 255 else 255
        values = np.clip(np.floor(picture + 0.5), 0, min(self.full, top))
        values = values.astype(np.uint16 if self.full > 255 else np.uint8)
        cv2.imwrite(self.name + ".png", values[:, :, 0] if self.channels == 1 else values)
        out = []
        for row in self.rows:
            x, y = int(round(row[1])), int(round(row[2]))
            core = values[max(y - 1, 0) : y + 2, max(x - 1, 0) : x + 2]
            flat = (values[max(y - 2, 0) : y + 3, max(x - 2, 0) : x + 3] == self.full).sum()
            word = "1" if flat > 5 else "0" if core.max() < 0.95 * self.full else "nearly"
            out.append(row + [word])
        return out


def hot(frame, n, low, high):
    """Hot pixels, none within a star: nobody could tell it from the star's own light."""
    def change(picture):
        for _ in range(n):
            x, y = rng.integers(0, WIDTH), rng.integers(0, HEIGHT)
            if all(math.hypot(x - row[1], y - row[2]) > 5 for row in frame.rows):
                picture[y, x] += low * (high / low) ** rng.uniform()
    return change


def letterbox(picture):
    picture[:37] = 0
    picture[-37:] = 0
    picture[:, :21] = 0


def turned(picture):
    """The black corners of a picture that was turned."""
    yy, xx = np.mgrid[:HEIGHT, :WIDTH]
    picture[xx + 2.5 * yy < 150] = 0
    picture[(WIDTH - xx) + 2.5 * (HEIGHT - yy) < 150] = 0


def satellite(picture):
    for t in np.arange(0, 420, 0.25):
        x0, y0, share = star_image(t, 40 + 0.5 * t, 1.1)
        add(picture[:, :, 0], x0, y0, 60 * share)


def gradient(frame):
    yy, xx = np.mgrid[:HEIGHT, :WIDTH]
    frame.sky = 15 + 90 * xx / WIDTH + 50 * yy / HEIGHT
    corner = ((xx - WIDTH / 2) ** 2 + (yy - HEIGHT / 2) ** 2) / (WIDTH / 2) ** 2
    frame.sky *= 1 - 0.1 * corner


def clouds(frame):
    veil = np.zeros((HEIGHT, WIDTH))
    for size, height in ((120, 30.0), (60, 8.0)):
        blobs = cv2.GaussianBlur(rng.normal(size=(HEIGHT, WIDTH)), (0, 0), size)
        veil += height * blobs / blobs.std()
    frame.sky = 70 + veil


def daylight():
    """Roofs, trees and a bright sky: edges and texture everywhere."""
    picture = np.full((HEIGHT, WIDTH), 190.0)
    for _ in range(14):
        x, w, h = rng.integers(0, WIDTH), rng.integers(20, 90), rng.integers(40, 180)
        picture[HEIGHT - h :, x : x + w] = rng.uniform(30, 150)
        for wy in range(HEIGHT - h + 8, HEIGHT - 8, 16):
            for wx in range(x + 4, min(x + w - 6, WIDTH - 6), 12):
                picture[wy : wy + 8, wx : wx + 5] = rng.uniform(20, 240)
    leaves = cv2.GaussianBlur(rng.normal(size=(HEIGHT, WIDTH)), (0, 0), 2.0)
    picture[200:] += 300 * leaves[200:]
    cv2.imwrite("daylight.png", np.clip(picture + rng.normal(size=picture.shape), 0, 255).astype(np.uint8))


def main():
    rows = []
    rows += Frame("plain").write()
    rows += Frame("narrow", fwhm=1.5, snr=(6, 150)).write()
    frame = Frame("hotpixels", fwhm=1.5, snr=(6, 150))
    rows += frame.write(hot(frame, 150, 15, 250))
    rows += Frame("wide", fwhm=6.0, count=25).write()
    frame = Frame("gradient")
    gradient(frame)
    rows += frame.write()
    frame = Frame("clouds")
    clouds(frame)
    rows += frame.write()
    rows += Frame("saturated", snr=(40, 6000), count=20).write()
    rows += Frame("twelvebits", noise=9, sky=300, full=4095, gain=0.3, snr=(20, 6000), count=20).write()
    rows += Frame("sixteenbits", noise=40, sky=900, full=65535, gain=0.05, snr=(6, 500)).write()
    rows += Frame("colour", channels=3).write()
    rows += Frame("letterbox").write(letterbox)
    rows += Frame("turned").write(turned)
    rows += Frame("satellite").write(satellite)
    rows += Frame("trailed", motion=9.0, snr=(15, 200), count=25).write()
    rows += Frame("unfocused", fwhm=16.0, snr=(15, 200), count=8).write()
    rows += Frame("noise", count=0).write()
    daylight()
    with open("stars.csv", "w") as file:
        file.write("# SPDX-License-Identifier: MIT\nframe,x,y,flux,fluxsigma,snr,sigma,saturated\n")
        for name, x, y, flux, scatter, snr, sigma, saturated in rows:
            file.write(f"{name},{x:.4f},{y:.4f},{flux:.2f},{scatter:.2f},{snr:.2f},{sigma:.4f},{saturated}\n")


main()
