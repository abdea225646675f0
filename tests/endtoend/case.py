# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""What the test programs share: how they are called, and a player at a desktop of its own.

Usage of each: PROGRAM FOLDER [TEST...], where FOLDER takes the screenshots of failures.
"""
import contextlib
import pathlib
import signal
import sys
import unittest

from desktop import Desktop
from player import Player

SOUNDS = pathlib.Path(__file__).resolve().parents[2] / "assets" / "sounds"
PROGRAM, FOLDER = (pathlib.Path(path).resolve() for path in sys.argv[1:3])


class Case(unittest.TestCase):
    @contextlib.contextmanager
    def desktop(self, width=1600, height=1200, **kind):
        with Desktop(FOLDER, width, height, **kind) as desktop:
            try:
                yield desktop
            except Exception:
                desktop.screenshot().save(FOLDER / f"{self.id()}.png")
                raise

    @contextlib.contextmanager
    def player(self, settings=None, **kind):
        with self.desktop(**kind) as desktop:
            yield Player(desktop, PROGRAM, settings)


def main():
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
