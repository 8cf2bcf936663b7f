#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Small pictures that say when they were taken, written byte by byte after the formats' standards.

Run in this folder:  /usr/bin/python3 generate.py
The dates can be held against another reader:  identify -format '%[EXIF:*] %[tiff:timestamp]' *.jpg *.tif
dates.csv: file, UTC seconds since 1970 (from python's datetime; local times are taken as UTC).
"""
import datetime
import struct
import zlib

import cv2
import numpy as np


def directory(order, entries, place, following=b""):
    """A TIFF directory at a place; entries: tag, type, count, value as bytes."""
    head = struct.pack(order + "H", len(entries))
    body, heap = b"", following
    heap_place = place + 2 + 12 * len(entries) + 4
    for tag, kind, count, value in entries:
        if len(value) > 4:
            field = struct.pack(order + "I", heap_place + len(heap))
            heap += value + b"\0" * (len(value) % 2)
        else:
            field = value.ljust(4, b"\0")
        body += struct.pack(order + "HHI", tag, kind, count) + field
    return head + body + struct.pack(order + "I", 0) + heap


def text(tag, value):
    data = value.encode() + b"\0"
    return (tag, 2, len(data), data)


def exif(order, changed=None, original=None, digitized=None, offset=None, first=()):
    exif_entries = []
    if original:
        exif_entries.append(text(0x9003, original))
    if digitized:
        exif_entries.append(text(0x9004, digitized))
    if offset:
        exif_entries += [text(tag, offset) for tag in (0x9010, 0x9011, 0x9012)]
    entries = list(first)
    if changed:
        entries.append(text(0x0132, changed))
    if exif_entries:
        entries.append((0x8769, 4, 1, b"\0\0\0\0"))
    entries.sort()
    size = len(directory(order, entries, 8))
    place = 8 + size
    entries = [(t, k, c, struct.pack(order + "I", place)) if t == 0x8769 else (t, k, c, v)
               for t, k, c, v in entries]
    head = (b"II" if order == "<" else b"MM") + struct.pack(order + "HI", 42, 8)
    out = head + directory(order, entries, 8)
    return out + directory(order, exif_entries, place) if exif_entries else out


PICTURE = (np.indices((40, 48)).sum(0) % 7 * 20).astype(np.uint8)


def jpeg(name, block):
    data = cv2.imencode(".jpg", PICTURE)[1].tobytes()
    app1 = b"Exif\0\0" + block
    with open(name, "wb") as file:
        file.write(data[:2] + b"\xff\xe1" + struct.pack(">H", len(app1) + 2) + app1 + data[2:])


def png(name, block):
    data = cv2.imencode(".png", PICTURE)[1].tobytes()
    chunk = b"eXIf" + block
    chunk = struct.pack(">I", len(block)) + chunk + struct.pack(">I", zlib.crc32(chunk))
    with open(name, "wb") as file:
        file.write(data[:33] + chunk + data[33:])


def tiff(name, order, **dates):
    short = lambda v: struct.pack(order + "H", v)
    def build(at):
        first = [(256, 3, 1, short(48)), (257, 3, 1, short(40)), (258, 3, 1, short(8)),
                 (259, 3, 1, short(1)), (262, 3, 1, short(1)),
                 (273, 4, 1, struct.pack(order + "I", at)), (277, 3, 1, short(1)),
                 (278, 3, 1, short(40)), (279, 4, 1, struct.pack(order + "I", 48 * 40))]
        return exif(order, first=first, **dates)
    block = build(0)
    block = build(len(block))
    with open(name, "wb") as file:
        file.write(block + PICTURE.tobytes())


def utc(*when, ahead=0.0):
    return datetime.datetime(*when, tzinfo=datetime.timezone.utc).timestamp() - 3600 * ahead


def main():
    rows = []
    jpeg("original.jpg", exif(">", changed="2020:01:01 00:00:00", original="2014:12:10 21:30:15"))
    rows.append(("original.jpg", utc(2014, 12, 10, 21, 30, 15)))
    jpeg("offset.jpg", exif("<", original="2025:06:30 23:59:59", offset="+05:30"))
    rows.append(("offset.jpg", utc(2025, 6, 30, 23, 59, 59, ahead=5.5)))
    jpeg("west.jpg", exif("<", digitized="2025:06:30 23:59:59", offset="-07:00"))
    rows.append(("west.jpg", utc(2025, 6, 30, 23, 59, 59, ahead=-7)))
    jpeg("changed.jpg", exif(">", changed="2031:02:03 04:05:06"))
    rows.append(("changed.jpg", utc(2031, 2, 3, 4, 5, 6)))
    jpeg("empty.jpg", exif("<", original="0000:00:00 00:00:00"))
    rows.append(("empty.jpg", ""))
    png("original.png", exif("<", original="2026:11:20 20:00:00", offset="+00:00"))
    rows.append(("original.png", utc(2026, 11, 20, 20)))
    tiff("little.tif", "<", changed="2019:03:04 05:06:07", original="2018:03:04 05:06:07")
    rows.append(("little.tif", utc(2018, 3, 4, 5, 6, 7)))
    tiff("big.tif", ">", changed="2019:03:04 05:06:07")
    rows.append(("big.tif", utc(2019, 3, 4, 5, 6, 7)))
    cv2.imwrite("none.png", PICTURE)
    rows.append(("none.png", ""))
    with open("dates.csv", "w") as file:
        file.write("# SPDX-License-Identifier: MIT\nfile,utc\n")
        for name, seconds in rows:
            file.write(f"{name},{seconds if seconds == '' else int(seconds)}\n")


main()
