#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Plays many games, or lets an animation run for long, and measures what the program holds: nothing may grow.

ROUNDS in the environment is the number of measurements.
"""
import os
import pathlib
import re
import subprocess

from Xlib.display import Display

from case import PROGRAM, Case, main
from desktop import wait_for

# Bytes and KiB; of all else, nothing. Caches take 10,000 and 24 within a hundred games, and no more in two thousand.
GROWTH = {"heap": 20_000, "memory": 200}


class Soak(Case):
    def soak(self, mode):
        # Without what malloc puts aside, memory that is in use can be counted to the byte.
        with self.desktop(session={"GLIBC_TUNABLES": "glibc.malloc.tcache_count=0"}) as desktop:
            process = desktop.start(PROGRAM, mode, os.environ.get("ROUNDS", "3"),
                                    stdin=subprocess.PIPE, output=subprocess.PIPE)
            window = wait_for("the window", lambda: desktop.xdotool("search", "--onlyvisible", "--pid", process.pid))
            display = Display(desktop.environment["DISPLAY"])
            samples = []
            for line in process.stdout:
                samples.append(self.sample(line.decode().split(), process.pid, display, int(window.split()[0])))
                print(samples[-1], flush=True)
                os.write(process.stdin.fileno(), b"\n")
            self.assertEqual(process.wait(), 0)
            for name, first in samples[0].items():
                self.assertLessEqual(samples[-1][name] - first, GROWTH.get(name, 0), f"{name} has grown")

    def sample(self, told, pid, display, window):
        folder = pathlib.Path(f"/proc/{pid}")
        return {**dict(zip(told[::2], map(int, told[1::2]))),
                "memory": int(re.search(r"Anonymous: +(\d+)", (folder / "smaps_rollup").read_text())[1]),
                "files": len(os.listdir(folder / "fd")), "threads": len(os.listdir(folder / "task")),
                "resources": sum(kind.count for kind in display.res_query_client_resources(window).types),
                "pixmaps": display.res_query_client_pixmap_bytes(window).bytes}

    def test_games(self):
        self.soak("games")

    def test_panel(self):
        self.soak("panel")

    def test_about(self):
        self.soak("about")


if __name__ == "__main__":
    main()
