#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Starts and ends the real program with odd values and homes, on a full disk, and beside another copy."""
import fcntl
import re
import resource

from case import PROGRAM, Case, main
from desktop import PATIENCE, wait_for

INI = f"{PROGRAM.stem}.ini"
# The program changes these at the start, because a best score is no number, and again at the end.
SETTINGS = "[init]\nx=y\nNiveau=2\nCol=5\nLig=20\nSon=2\n0=10\n2=abc\n"
CORRECTED = "[init]\nx=y\nNiveau=2\nCol=8\nLig=20\nSon=1\n0=10\n2=0\n"


class Files(Case):
    def run_once(self, desktop, *prefix, meanwhile=lambda process: None):
        process = desktop.start(*prefix, PROGRAM)
        wait_for("the window", desktop.windows)
        meanwhile(process)
        process.terminate()
        self.assertEqual(process.wait(PATIENCE), 0)

    def test_full_disks(self):
        """A write beyond the limit for file sizes fails like a write to a full disk, and also raises a signal."""
        with self.desktop() as desktop:
            for limit, stored in ((0, SETTINGS), (20, SETTINGS), (resource.RLIM_INFINITY, CORRECTED)):
                def change_limit(process):
                    resource.prlimit(process.pid, resource.RLIMIT_FSIZE, (limit, resource.RLIM_INFINITY))
                with self.subTest(limit=limit):
                    (desktop.home / INI).write_text(SETTINGS)
                    self.run_once(desktop, "prlimit", "--fsize=0:unlimited", meanwhile=change_limit)
                    self.assertEqual((desktop.home / INI).read_text(), stored)

    def test_locks(self):
        """While another copy keeps the lock, the program saves nothing until it ends."""
        with self.desktop() as desktop, open(desktop.home / f"{INI}.lock", "w") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            (desktop.home / INI).write_text(SETTINGS)
            self.run_once(desktop)
            self.assertEqual((desktop.home / INI).read_text(), CORRECTED)

    def test_values(self):
        with self.desktop() as desktop:
            for value, level, sound, best in (
                ("99999999999999999999", "0", "1", "99999999999999999999"), ("-5", "0", "1", "0"),
                ("1e9", "0", "1", "1e9"), ("1, 2", "0", "1", "0"), ("", "0", "1", "0"), ("1.6", "2", "1", "1.6"),
                ("0.4", "0", "0", "0.4"), ("4.4", "4", "1", "4.4"), ("5", "0", "1", "5"),
            ):
                with self.subTest(value=value):
                    lines = [f"{key}={value}\n" for key in ("Niveau", "Col", "Lig", "Son", "0")]
                    (desktop.home / INI).write_text("[init]\n" + "".join(lines))
                    self.run_once(desktop)
                    stored = dict(re.findall("(.+)=(.*)", (desktop.home / INI).read_text()))
                    self.assertEqual((stored["Niveau"], stored["Son"], stored["0"]), (level, sound, best))
                    self.assertIn(int(stored["Col"]), range(8, 1001))
                    self.assertIn(int(stored["Lig"]), range(14, 1001))

    def test_homes(self):
        for changes, folders in ((["XDG_CONFIG_HOME=relative"], [".config"]), (["XDG_CONFIG_HOME="], [".config"]),
                                 (["-u", "XDG_CONFIG_HOME"], [".config"]), (["-u", "HOME", "XDG_CONFIG_HOME="], []),
                                 (["HOME=relative", "XDG_CONFIG_HOME="], [])):
            with self.subTest(changes=changes), self.desktop() as desktop:
                self.run_once(desktop, "env", *changes)
                self.assertEqual([file.parent.name for file in desktop.home.rglob(INI)], folders)


if __name__ == "__main__":
    main()
