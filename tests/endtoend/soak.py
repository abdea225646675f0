#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Plays many games, or lets an animation run for long, and measures what the program holds: nothing may grow.

ROUNDS in the environment says how often it is looked at.
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
    def soak(self, what, each):
        # Without what malloc puts aside, memory that is in use can be counted to the byte.
        with self.desktop(session={"GLIBC_TUNABLES": "glibc.malloc.tcache_count=0"}) as desktop:
            (desktop.home / f"{PROGRAM.stem}.ini").write_text("[init]\nSon=0\nCol=8\nLig=14\n")
            process = desktop.start(PROGRAM, what, os.environ.get("ROUNDS", "3"), str(each),
                                    input=subprocess.PIPE, output=subprocess.PIPE)
            window = wait_for("the window", lambda: desktop.xdotool("search", "--onlyvisible", "--pid", process.pid))
            display, samples = Display(desktop.environment["DISPLAY"]), []
            for line in process.stdout:
                samples.append(self.sample(line.decode().split(), process.pid, display, int(window.split()[0])))
                print(*(f"{name} {number}" for name, number in samples[-1].items()), flush=True)
                process.stdin.write(b"\n")
                process.stdin.flush()
            self.assertEqual(process.wait(), 0)
            for name, first in list(samples[0].items())[1:]:
                self.assertLessEqual(samples[-1][name] - first, GROWTH.get(name, 0), f"{name} has grown")

    def sample(self, told, pid, display, window):
        folder = pathlib.Path(f"/proc/{pid}")
        return {**dict(zip(told[::2], map(int, told[1::2]))),
                "memory": int(re.search(r"Anonymous: +(\d+)", (folder / "smaps_rollup").read_text())[1]),
                "files": len(list((folder / "fd").iterdir())), "threads": len(list((folder / "task").iterdir())),
                "resources": sum(kind.count for kind in display.res_query_client_resources(window).types),
                "pixmaps": display.res_query_client_pixmap_bytes(window).bytes}

    def test_games(self):
        self.soak("games", 50)

    def test_panel(self):
        self.soak("panel", 60)

    def test_about(self):
        self.soak("about", 60)


if __name__ == "__main__":
    main()
