#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the FITS and SER files of tst_fitsfile and tst_serfile, with astropy and numpy.

The value of pixel (x, y) of plane c is 1000 + 3 x + 50 y + 7 c (16 bits), or that over 16 (8 bits).
Usage: make_pictures.py FOLDER
"""
import pathlib
import struct
import sys

import numpy as np
from astropy.io import fits

WIDTH, HEIGHT = 40, 24
out = pathlib.Path(sys.argv[1])


def plane(colour=0):
    y, x = np.mgrid[0:HEIGHT, 0:WIDTH]
    return 1000 + 3 * x + 50 * y + 7 * colour


def write_fits(name, data, compressed=False, **cards):
    header = fits.Header([(key.replace("_", "-"), value) for key, value in cards.items()])
    if compressed:
        units = fits.HDUList([fits.PrimaryHDU(), fits.CompImageHDU(data, header, compression_type="RICE_1")])
    else:
        units = fits.HDUList([fits.PrimaryHDU(data, header)])
    units.writeto(out / name, overwrite=True)


write_fits("uint8.fits", (plane() // 16).astype(np.uint8), DATE_OBS="2026-11-20T20:00:00")
write_fits("uint16.fits", plane().astype(np.uint16), DATE_OBS="2026-11-20T20:00:00.250", EXPTIME=3.0)
write_fits("int16.fits", plane().astype(np.int16), DATE_OBS="2026-11-20")
write_fits("int32.fits", plane().astype(np.int32), DATE_AVG="2026-11-20T20:00:07.5",
           DATE_OBS="2026-11-20T20:00:00", EXPTIME=3.0)
write_fits("float.fits", plane().astype(np.float32))
unit = (plane() - 1000).astype(np.float64) / (plane().max() - 1000)
unit[3, 5] = np.nan
write_fits("unitfloat.fits", unit)
write_fits("colour.fits", np.stack([plane(c) for c in range(3)]).astype(np.uint16))
write_fits("bayer.fits", plane().astype(np.uint16), BAYERPAT="RGGB")
write_fits("bottomup.fits", plane()[::-1].astype(np.uint16), ROWORDER="BOTTOM-UP")
write_fits("rice.fits", plane().astype(np.uint16), compressed=True, DATE_OBS="2026-11-20T20:00:00")
write_fits("table.fits", None)


def write_ser(name, frames, colour, depth, order="<", little=0, dates=True, cut=0):
    kind = np.dtype(order + "u2") if depth > 8 else np.dtype("u1")
    first = frames[0]
    # 2026-11-20T20:00:00Z in 100 ns since the year 1
    epoch = (1795204800 + 62135596800) * 10_000_000
    head = struct.pack("<14s7i40s40s40sqq", b"LUCAM-RECORDER", 0, colour, little, first.shape[1],
                       first.shape[0], depth, len(frames), b"", b"", b"", epoch, epoch)
    body = b"".join(np.ascontiguousarray(f).astype(kind).tobytes() for f in frames)
    tail = b"".join(struct.pack("<q", epoch + 5_000_000 * i) for i in range(len(frames))) if dates else b""
    whole = head + body + tail
    (out / name).write_bytes(whole[:len(whole) - cut] if cut else whole)


write_ser("grey8.ser", [(plane() + 16 * i) // 16 for i in range(3)], 0, 8)
write_ser("grey16.ser", [plane() + 16 * i for i in range(3)], 0, 16)
write_ser("grey16big.ser", [plane() + 16 * i for i in range(3)], 0, 16, order=">", little=1)
write_ser("bayer12.ser", [plane()], 8, 12, dates=False)
write_ser("rgb8.ser", [np.stack([plane(16 * c) // 16 for c in range(3)], axis=-1)], 100, 8)
write_ser("bgr8.ser", [np.stack([plane(16 * c) // 16 for c in (2, 1, 0)], axis=-1)], 101, 8)
write_ser("cut.ser", [plane() + 16 * i for i in range(3)], 0, 16, dates=False, cut=100)
