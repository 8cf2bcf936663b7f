#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes the assistant's two sounds, assistantwindow/pulse.wav and tone.wav.

The pulse is a sine of 60 ms with soft ends; the tone is one second whose waves fit it without a
seam. Usage: python3 tools/make_pulses.py
"""
import math
import pathlib
import struct
import wave

RATE = 22050  # samples per second
FOLDER = pathlib.Path(__file__).resolve().parent.parent / "assistantwindow"


def write(name, samples):
    with wave.open(str(FOLDER / name), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(b"".join(struct.pack("<h", round(20000 * s)) for s in samples))


def sine(frequency, count):
    return [math.sin(2 * math.pi * frequency * i / RATE) for i in range(count)]


length = int(0.06 * RATE)
write("pulse.wav", [s * math.sin(math.pi * i / length) ** 2
                    for i, s in enumerate(sine(880, length))])
write("tone.wav", [0.6 * s for s in sine(880, RATE)])
