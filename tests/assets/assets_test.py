#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Checks the formats, sizes and joins of the pictures, and the length, level and ends of the sounds.

Usage: assets_test.py [ASSETS_FOLDER]
"""
import pathlib
import struct
import sys
import wave

import numpy as np
from PIL import Image

FIELD = (128, 160, 192)
GREY = (128, 128, 128)
# Where the centre of the rounding lies, seen from the piece's top left.
CORNERS = {"HG": (16, 16), "HD": (0, 16), "BG": (16, 0), "BD": (0, 0)}

failures = []


def expect(condition, message):
    if not condition:
        failures.append(message)


def pixels(folder, file, image_format, size):
    """RGBA pixels by row and column."""
    image = Image.open(folder / file)
    expect((image.format, image.size) == (image_format, size), f"{file}: {image.format} of {image.size}")
    return np.array(image.convert("RGBA")).astype(int)


def check_balls(folder):
    files = [f"{ball}.gif" for ball in ("ir", "ib", "iv", "ij", "ip", "ig")]
    shapes = [pixels(folder, file, "GIF", (20, 20))[:, :, 3] > 0 for file in files]
    for shape in shapes + [shapes[0][::-1], shapes[0][:, ::-1], shapes[0].T]:
        expect(np.array_equal(shape, shapes[0]), "balls: the silhouettes differ or are not round and centred")
    rows = np.flatnonzero(shapes[0].any(axis=1))
    expect(len(rows) in (18, 19), f"balls: {len(rows)} pixels across, so they look small or merge")


def check_buttons(folder):
    for file, sign in (("button-normal.gif", 1), ("button-hover.gif", -1)):
        button = pixels(folder, file, "GIF", (76, 20))
        expect(not button[[0, 0, -1, -1], [0, -1, 0, -1], 3].any(), f"{file}: corners are not cut")
        shown = button[:, 1:-1]  # the first and last column are clear
        expect((shown[10, :, 3] > 0).all() and (shown[:, 36, 3] > 0).all(), f"{file}: has holes")
        sides = shown[[0, -1, 10, 10], [36, 36, 0, -1], :3].sum(axis=1)
        top, bottom, left, right = sign * (sides - sum(FIELD))
        expect(min(top, left) > 60 and max(bottom, right) < -60, f"{file}: lit from the wrong side")


def check_frame(folder):
    piece = {name: pixels(folder, f"{name}.bmp", "BMP", (16, 16))[:, :, :3] for name in ("H", "B", "G", "D", *CORNERS)}
    for name in piece:
        kind = struct.unpack_from("<HI", (folder / f"{name}.bmp").read_bytes(), 28)
        expect(kind == (24, 0), f"{name}.bmp: bits and compression are {kind}")
    # Every edge as a profile from the rim inwards; along the edge it must not change.
    edges = {"H": piece["H"], "B": piece["B"][::-1],
             "G": piece["G"].swapaxes(0, 1), "D": piece["D"].swapaxes(0, 1)[::-1]}
    for name, rows in edges.items():
        expect((rows == rows[:, :1]).all(), f"{name}.bmp: does not tile")
        expect(tuple(rows[-1, 0]) == FIELD, f"{name}.bmp: does not end in the colour of the field")
        expect((rows.mean() > np.mean(FIELD)) == (name in "HG"), f"{name}.bmp: lit from the wrong side")
    for name, (x, y) in CORNERS.items():
        across, down = np.meshgrid(np.arange(16) + 0.5 - x, np.arange(16) + 0.5 - y)
        outside = np.hypot(across, down) > 16.75
        expect((piece[name][outside] == GREY).all(), f"{name}.bmp: not grey outside of the rounding")
        for side, edge in ((piece[name][:, -1 if x else 0], piece[name[0]][:, 0]),
                           (piece[name][-1 if y else 0], piece[name[1]][0])):
            expect(np.abs(side - edge).max() <= 12, f"{name}.bmp: a step where it joins an edge")


def check_icons(folder):
    for file in ("zampotine.ico", "help.ico"):
        alpha = pixels(folder, file, "ICO", (32, 32))[:, :, 3]
        expect(set(np.unique(alpha)) == {0, 255}, f"{file}: not cut out of a clear ground")
        data = (folder / file).read_bytes()
        count, (offset,) = struct.unpack_from("<H", data, 4)[0], struct.unpack_from("<I", data, 18)
        (bits,) = struct.unpack_from("<H", data, offset + 14)
        expect((count, bits) == (1, 4), f"{file}: {count} pictures, {bits} bits a pixel")


def check_sounds(folder):
    lengths, energies = [], []
    for name in ("son2", "son5", "son10", "son50", "son80"):
        with wave.open(str(folder / f"{name}.WAV")) as sound:
            kind = (sound.getnchannels(), sound.getsampwidth(), sound.getframerate())
            samples = np.frombuffer(sound.readframes(sound.getnframes()), "<i2") / 32768
        expect(kind == (1, 2, 44100), f"{name}: channels, bytes, rate are {kind}")
        peak = 20 * np.log10(np.abs(samples).max())
        expect(-8 < peak < -2.9, f"{name}: peak {peak:.1f} dB")
        expect(samples[0] == 0 and np.abs(samples[-44:]).max() < 0.001, f"{name}: clicks where it begins or ends")
        expect(np.abs(samples).argmax() < 0.03 * 44100, f"{name}: not loudest at once")
        lengths.append(len(samples) / 44.1)
        energies.append((samples**2).sum())
    expect(lengths == [60, 110, 180, 260, 350], f"sounds: they last {lengths} ms")
    expect(energies == sorted(energies), "sounds: a bigger group sounds weaker than a smaller one")


if __name__ == "__main__":
    assets = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2] / "assets")
    for check in (check_balls, check_buttons, check_frame, check_icons):
        check(assets / "pictures")
    check_sounds(assets / "sounds")
    sys.exit("\n".join(failures) or 0)
