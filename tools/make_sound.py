#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes resources/audio/audio.mp3, the calm loop behind Tools > Unfreeze.

Needs numpy and lame. The loop is 48 seconds of slow chords and single bell notes. Sound
that extends past the end is added to the beginning, so that the waveform has no seam. Usage:
python3 tools/make_sound.py
"""
import pathlib
import subprocess
import tempfile
import wave

import numpy as np

RATE = 44100  # samples per second
SECONDS = 48
LENGTH = RATE * SECONDS
TARGET = pathlib.Path(__file__).resolve().parent.parent / "resources" / "audio" / "audio.mp3"

# Semitones above A3 (220 Hz), one chord for every eight seconds.
CHORDS = [(-12, 0, 7, 11), (-15, -3, 4, 9), (-10, -5, 2, 9), (-17, -5, 0, 7), (-15, -8, 4, 11),
          (-14, -2, 5, 10)]
# (second, semitones above A4) of the bells, deliberately sparse.
BELLS = [(1.0, 7), (4.0, 14), (9.5, 4), (13.0, 16), (17.0, 9), (20.5, 14), (25.5, 7), (29.0, 12),
         (33.0, 11), (37.5, 4), (41.5, 10), (45.0, 5)]


def note(semitones, base):
    return base * 2 ** (semitones / 12)


def add_round(track, start, sound):
    """Adds `sound` from second `start` on, wrapping around at the end of the loop."""
    places = (int(start * RATE) + np.arange(len(sound))) % LENGTH
    np.add.at(track, places, sound)


def pad(frequency, pan, rng):
    """A soft 12-second voice of partials; the first two are slightly detuned, so that they beat."""
    time = np.arange(12 * RATE) / RATE
    envelope = np.sin(np.pi * np.minimum(time / 12, 1)) ** 2
    sound = np.zeros(len(time))
    for factor, strength in ((1, 1.0), (1.003, 0.8), (2, 0.22), (3, 0.06)):
        phase = rng.uniform(0, 2 * np.pi)
        sound += strength * np.sin(2 * np.pi * frequency * factor * time + phase)
    sound *= envelope
    return np.stack([sound * np.sqrt(1 - pan), sound * np.sqrt(pan)], axis=1)


def bell(frequency, pan):
    """A struck note that decays within 7 seconds."""
    time = np.arange(7 * RATE) / RATE
    sound = np.zeros(len(time))
    for factor, strength, decay in ((1, 1.0, 1.8), (2.0, 0.35, 1.0), (3.01, 0.12, 0.6)):
        sound += strength * np.exp(-time / decay) * np.sin(2 * np.pi * frequency * factor * time)
    sound *= np.minimum(time / 0.012, 1) * np.minimum((7 - time) / 0.5, 1)
    return np.stack([sound * np.sqrt(1 - pan), sound * np.sqrt(pan)], axis=1)


def loop():
    """The stereo samples, from -1 to 1."""
    rng = np.random.default_rng(20240523)
    track = np.zeros((LENGTH, 2))
    for number, chord in enumerate(CHORDS):
        for voice, semitones in enumerate(chord):
            frequency = note(semitones, 220.0)
            # Each chord overlaps its eight seconds at both ends; higher voices are softer.
            add_round(track, 8 * number - 2,
                      pad(frequency, 0.35 + 0.1 * voice, rng) * 0.5 / (1 + 0.5 * voice))
    for number, (start, semitones) in enumerate(BELLS):
        add_round(track, start, bell(note(semitones, 440.0), 0.3 if number % 2 else 0.7) * 0.16)
    return 0.5 * track / np.abs(track).max()


def main():
    samples = loop()
    steps = np.abs(np.diff(samples, axis=0)).max()
    seam = np.abs(samples[0] - samples[-1]).max()
    if seam > steps:
        raise SystemExit(f"the loop has a seam: {seam:.5f} against steps of {steps:.5f}")
    TARGET.parent.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        plain = pathlib.Path(folder) / "loop.wav"
        with wave.open(str(plain), "wb") as file:
            file.setnchannels(2)
            file.setsampwidth(2)
            file.setframerate(RATE)
            file.writeframes((samples * 32767).round().astype("<i2").tobytes())
        subprocess.run(["lame", "--quiet", "-b", "128", "-m", "j", str(plain), str(TARGET)],
                       check=True)
    print(f"{TARGET.name}: {TARGET.stat().st_size} bytes, {SECONDS} s, seam {seam:.5f}")


if __name__ == "__main__":
    main()
