#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Checks that all players can tell the six balls from each other and from the steel blue field behind them.

Prints a table for each folder of pictures. Every picture is measured as it looks on the field. The table has:
- the colour difference (CIEDE2000) of every two balls, and of every ball and the field, by mean colour and by dominant
  colour, for normal sight and for three simulated kinds of dichromacy; at least LEAST_DIFFERENCE
- for players who see no hues, the lightness (CIE L*) of every ball, and its step from the next darker ball; at least
  LEAST_STEP
- the lightness of every ball's rim, and its contrast to the field; at least LEAST_CONTRAST
A lightness is taken both as the mean L* of the pixels and as the L* of their mean luminance. The exit status is 1 if a
figure is less than its bound, or if the formula misses a published value.

Usage: colour_table.py [PICTURES_FOLDER...]
Without an argument, the folder is assets/pictures.
"""
import itertools
import pathlib
import sys

import numpy as np
from PIL import Image

LEAST_DIFFERENCE = 10.0
LEAST_STEP = 5.0
LEAST_CONTRAST = 15.0
FIELD = np.array([128, 160, 192]) / 255
BALLS = {"ir": "red", "ib": "blue", "iv": "green", "ij": "yellow", "ip": "magenta", "ig": "slate"}
PICTURES = pathlib.Path(__file__).resolve().parent / "pictures"

# The matrices of Machado, Oliveira and Fernandes (2009) for severity 1.0. They apply to linear RGB.
SIGHTS = {
    "normal": np.eye(3),
    "protanopia": np.array([[0.152286, 1.052583, -0.204868],
                            [0.114503, 0.786281, 0.099216],
                            [-0.003882, -0.048116, 1.051998]]),
    "deuteranopia": np.array([[0.367322, 0.860646, -0.227968],
                              [0.280085, 0.672501, 0.047413],
                              [-0.011820, 0.042940, 0.968881]]),
    "tritanopia": np.array([[1.255528, -0.076749, -0.178779],
                            [-0.078411, 0.930809, 0.147602],
                            [0.004733, 0.691367, 0.303900]]),
}
XYZ_FROM_RGB = np.array([[0.4124564, 0.3575761, 0.1804375],
                         [0.2126729, 0.7151522, 0.0721750],
                         [0.0193339, 0.1191920, 0.9503041]])

# Published test values of Sharma, Wu and Dalal (2005): two Lab colours and their difference.
PUBLISHED = [
    ((50, 2.6772, -79.7751), (50, 0, -82.7485), 2.0425),
    ((50, 2.49, -0.001), (50, -2.49, 0.0011), 7.2195),
    ((50, 2.5, 0), (73, 25, -18), 27.1492),
    ((2.0776, 0.0795, -1.1350), (0.9033, -0.0636, -0.5514), 0.9082),
]


def linear(srgb):
    return np.where(srgb <= 0.04045, srgb / 12.92, ((srgb + 0.055) / 1.055) ** 2.4)


def lab(rgb):
    """The CIE Lab values (white point D65) of a linear RGB colour."""
    t = (XYZ_FROM_RGB @ rgb) / XYZ_FROM_RGB.sum(axis=1)
    x, y, z = np.where(t > (6 / 29) ** 3, np.cbrt(t), t * (29 / 6) ** 2 / 3 + 4 / 29)
    return 116 * y - 16, 500 * (x - y), 200 * (y - z)


def ciede2000(one, other):
    (l1, a1, b1), (l2, a2, b2) = one, other
    c_bar = (np.hypot(a1, b1) + np.hypot(a2, b2)) / 2
    g = 1.5 - 0.5 * np.sqrt(c_bar**7 / (c_bar**7 + 25.0**7))
    c1, c2 = np.hypot(a1 * g, b1), np.hypot(a2 * g, b2)
    h1, h2 = (np.degrees(np.arctan2(b, a * g)) % 360 for a, b in ((a1, b1), (a2, b2)))
    grey = c1 * c2 == 0
    dh = 0 if grey else (h2 - h1 + 180) % 360 - 180
    h = h1 + h2 if grey else h1 + dh / 2
    dl, dc, dh = l2 - l1, c2 - c1, 2 * np.sqrt(c1 * c2) * np.sin(np.radians(dh / 2))
    l, c = (l1 + l2) / 2, (c1 + c2) / 2
    t = (1 - 0.17 * np.cos(np.radians(h - 30)) + 0.24 * np.cos(np.radians(2 * h))
         + 0.32 * np.cos(np.radians(3 * h + 6)) - 0.20 * np.cos(np.radians(4 * h - 63)))
    sl = 1 + 0.015 * (l - 50) ** 2 / np.sqrt(20 + (l - 50) ** 2)
    sc, sh = 1 + 0.045 * c, 1 + 0.015 * c * t
    rt = -2 * np.sqrt(c**7 / (c**7 + 25.0**7)) * np.sin(np.radians(60 * np.exp(-(((h % 360 - 275) / 25) ** 2))))
    return np.sqrt((dl / sl) ** 2 + (dc / sc) ** 2 + (dh / sh) ** 2 + rt * dc / sc * dh / sh)


def ball_pixels(path):
    """The pixels of a ball as they look on the field, and those of its rim; each channel from 0 to 1.

    The ball consists of the pixels that are mostly opaque. The rim consists of those that have a neighbour above,
    below, to the left or to the right outside of the ball.
    """
    picture = np.array(Image.open(path).convert("RGBA")) / 255
    alpha = picture[:, :, 3:]
    shown = alpha * picture[:, :, :3] + (1 - alpha) * FIELD
    ball = alpha[:, :, 0] > 0.5
    around = np.pad(ball, 1)
    inside = around[:-2, 1:-1] & around[2:, 1:-1] & around[1:-1, :-2] & around[1:-1, 2:]
    return shown[ball], shown[ball & ~inside]


def mean_and_dominant(pixels):
    """The mean and the dominant colour of the pixels.

    Each channel is divided into eight ranges, so there are 8 x 8 x 8 bins. The dominant colour is the mean of the
    fullest bin.
    """
    bins = np.round(pixels * 255) // 32
    _, members, counts = np.unique(bins, axis=0, return_inverse=True, return_counts=True)
    return pixels.mean(axis=0), pixels[members.reshape(-1) == counts.argmax()].mean(axis=0)


def lightness(pixels):
    """The mean L* of the pixels, and the L* of their mean luminance."""
    rgb = linear(pixels)
    return np.array([np.mean([lab(pixel)[0] for pixel in rgb]), lab(rgb.mean(axis=0))[0]])


def main():
    for one, other, expected in PUBLISHED:
        for pair in ((one, other), (other, one)):
            if abs(ciede2000(*pair) - expected) > 5e-5:
                sys.exit(f"ciede2000{pair} is {ciede2000(*pair):.4f}, but the published value is {expected}")

    return int(not all([check(pathlib.Path(folder)) for folder in sys.argv[1:] or [PICTURES]]))


def check(folder):
    """Prints the table of one folder of pictures, and returns whether every figure reaches its bound."""
    print(folder)
    balls = {name: ball_pixels(next(folder.glob(f"{file}.*"))) for file, name in BALLS.items()}
    return all([check_colours(balls), check_lightness(balls)])


def check_colours(balls):
    """Prints the colour differences, and returns whether the smallest one is large enough."""
    colours = {name: mean_and_dominant(pixels) for name, (pixels, _) in balls.items()} | {"field": (FIELD, FIELD)}
    least = np.inf
    for sight, matrix in SIGHTS.items():
        print(f"{sight:18}    mean  dominant")
        seen = {name: [lab(np.clip(matrix @ linear(rgb), 0, 1)) for rgb in kinds] for name, kinds in colours.items()}
        for one, other in itertools.combinations(seen, 2):
            mean, dominant = map(ciede2000, seen[one], seen[other])
            low = "  too close" if min(mean, dominant) < LEAST_DIFFERENCE else ""
            print(f"  {one + ' - ' + other:16}  {mean:6.1f}  {dominant:8.1f}{low}")
            least = min(least, mean, dominant)
    print(f"smallest difference: {least:.1f}")
    return least >= LEAST_DIFFERENCE


def check_lightness(balls):
    """Prints the lightness of the balls and rims, and returns whether all steps and contrasts are large enough."""
    field = lightness(FIELD[np.newaxis])
    print(f"lightness (field {field[0]:.1f})       ball          step           rim      contrast")
    good, darker = True, -np.inf
    for (name, (_, rim)), light in sorted(((ball, lightness(ball[1][0])) for ball in balls.items()),
                                          key=lambda ball: ball[1][0]):
        step, rim = light - darker, lightness(rim)
        contrast = abs(rim - field)
        low = "  too close" if min(step) < LEAST_STEP or min(contrast) < LEAST_CONTRAST else ""
        print(f"  {name:16}", *(f"{mean:6.1f} {luminance:6.1f}" for mean, luminance in (light, step, rim, contrast)),
              low)
        good, darker = good and not low, light
    return good


if __name__ == "__main__":
    sys.exit(main())
