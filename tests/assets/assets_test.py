#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Checks the pictures and sounds for what a change of their sources may spoil."""
import pathlib
import subprocess
import unittest

import numpy as np
from PIL import Image

ASSETS = pathlib.Path(__file__).parents[2] / "assets"
FIELD = (128, 160, 192)  # the background of the windows


def pixels(name):
    """The pixels by row and column. Each is red, green, blue and opacity."""
    with Image.open(ASSETS / "pictures" / name) as picture:
        return np.array(picture.convert("RGBA")).astype(int)


class Assets(unittest.TestCase):
    def test_pictures_have_their_formats_and_sizes(self):
        for files, expected in (("i?.gif", "GIF image data, .*20 x 20"), ("button-*.gif", "GIF image data, .*76 x 20"),
                                ("[BDGH]*.bmp", "PC bitmap, .*16 x 16 x 24, .*"),
                                ("*.ico", "MS Windows icon resource - 1 icon, 32x32, 16 colors.*")):
            formats = subprocess.check_output(["file", "--brief", *ASSETS.glob(f"pictures/{files}")], text=True)
            self.assertRegex(formats, f"^({expected}\n)+$")

    def test_balls_have_one_round_shape_that_nearly_fills_a_cell(self):
        ball, *others = (pixels(f"{name}.gif")[:, :, 3] > 0 for name in ("ir", "ib", "iv", "ij", "ip", "ig"))
        for shape in (*others, ball.T, ball[::-1]):
            np.testing.assert_array_equal(shape, ball)
        self.assertIn(ball.any(axis=0).sum(), (18, 19))

    def test_buttons_are_lit_from_the_top_left_and_turned_round_under_the_mouse(self):
        button = pixels("button-normal.gif")
        np.testing.assert_array_equal(pixels("button-hover.gif"), button[::-1, ::-1])
        self.assertFalse(button[::19, ::75, 3].any(), "a corner is not cut")
        self.assertTrue(button[:, 8:-8, 3].all() and button[10, 1:-1, 3].all(), "there is a hole")
        light = button[:, :, :3].mean(axis=2) - np.mean(FIELD)
        self.assertGreater(min(light[0, 37], light[10, 1]), 20)
        self.assertLess(max(light[-1, 37], light[10, -2]), -20)

    def test_frame_has_edges_that_tile_and_rounded_corners_that_join_them(self):
        sides = (("HG", "H", "HD"), ("HD", "D", "BD"), ("BD", "B", "BG"), ("BG", "G", "HG"))
        for turns, side in enumerate(sides):
            with self.subTest(side):
                # The side of the frame, turned so that its outer rim is at the top.
                strip = np.hstack([np.rot90(pixels(f"{piece}.bmp")[:, :, :3], turns) for piece in side])
                steps = abs(np.diff(strip, axis=1)).max(axis=(0, 2))
                self.assertEqual(steps[16:31].max(), 0, "the edge does not tile")
                self.assertLessEqual(steps[[15, 31]].max(), 12, "there is a step at a corner")
                self.assertTrue((strip[15, 16] == FIELD).all(), "the edge does not end in the colour of the field")
                self.assertEqual(strip[:, 16].mean() > np.mean(FIELD), "H" in side[1] or "G" in side[1], "wrongly lit")
                to_centre = 15.5 - np.arange(16)
                outside = np.hypot.outer(to_centre, to_centre) > 16.75
                self.assertTrue((strip[:, :16][outside] == 128).all(), "the corner is not grey outside of its rounding")

    def test_icons_are_cut_out(self):
        for name in ("zampotine.ico", "help.ico"):
            self.assertEqual(set(pixels(name)[:, :, 3].flat), {0, 255}, name)

    def test_sounds_are_loudest_at_once_and_a_bigger_group_sounds_stronger(self):
        weaker = 0
        for name, milliseconds in (("son2", 60), ("son5", 110), ("son10", 180), ("son50", 260), ("son80", 350)):
            with self.subTest(name):
                samples = np.fromfile(ASSETS / f"sounds/{name}.WAV", "<i2", offset=44) / 32768
                self.assertEqual(len(samples), 44100 * milliseconds // 1000)
                self.assertTrue(0.4 < abs(samples).max() < 0.716, "it is too quiet or too loud")
                self.assertLess(abs(samples).argmax(), 0.03 * 44100)
                self.assertTrue(samples[0] == 0 and abs(samples[-44:]).max() < 0.001, "it clicks at an end")
                self.assertGreater((samples**2).sum(), weaker)
                weaker = (samples**2).sum()


if __name__ == "__main__":
    unittest.main()
