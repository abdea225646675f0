#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Starts and ends the real program, without a display, over files and disks of every kind."""
import contextlib
import errno
import itertools
import os
import pathlib
import re
import resource
import signal
import subprocess
import tempfile
import unittest

from case import FAULTS, FOLDER, PROGRAM, main
from desktop import PATIENCE, wait_for

STRIDE = int(os.environ.get("STRIDE", 7))  # from one operation that is struck to the next
# Of root, who may write to any file.
WITHOUT_PRIVILEGES = () if os.geteuid() else ("setpriv", "--inh-caps=-all", "--bounding-set=-all")
# Over these the program saves at the start, a best score that is none, and at the end, what it has corrected.
SETTINGS = b"[init]\nx=y\nNiveau=2\nCol=5\nLig=20\nSon=2\n0=10\n2=abc\n"
CORRECTED = b"[init]\nx=y\nNiveau=2\nCol=8\nLig=20\nSon=1\n0=10\n2=0\n"
BACKUP = b"[init]\n0=77\n"


def catches(process, number):
    caught = re.search(r"SigCgt:\s*(\w+)", pathlib.Path(f"/proc/{process.pid}/status").read_text())
    return caught and int(caught[1], 16) >> (number - 1) & 1


class Files(unittest.TestCase):
    @contextlib.contextmanager
    def home(self, settings=None, backup=None):
        with tempfile.TemporaryDirectory(dir=FOLDER) as folder:
            ini = pathlib.Path(folder) / "home" / f"{PROGRAM.stem}.ini"
            ini.parent.mkdir()
            for file, content in ((ini, settings), (ini.with_suffix(".ini.bak"), backup)):
                if content is not None:
                    file.write_bytes(content)
            yield ini

    def run_once(self, ini, *prefix, meanwhile=lambda process: None, unset=(), **environment):
        """Starts the program in the folder of its file, does something else once it has dealt, and ends it."""
        settings = {"HOME": str(ini.parent), "XDG_CONFIG_HOME": str(ini.parent), "QT_QPA_PLATFORM": "offscreen",
                    "SDL_AUDIODRIVER": "dummy", **environment}
        kept = {name: value for name, value in (os.environ | settings).items() if name not in unset}
        process = subprocess.Popen([*prefix, PROGRAM], env=kept, cwd=ini.parent, stderr=subprocess.DEVNULL)
        try:
            wait_for("the program", lambda: process.poll() is not None or catches(process, signal.SIGTERM))
            meanwhile(process)
            process.terminate()
            self.assertEqual(process.wait(PATIENCE), 0)
        finally:
            process.kill()
            process.wait()

    def test_faults(self):
        kinds = [(kind, lasting) for kind in (errno.ENOSPC, errno.EIO, errno.EINTR, -1) for lasting in (0, 1)
                 if (kind, lasting) != (errno.EINTR, 1)]  # no system interrupts for ever
        operations = set()
        for shift, (kind, lasting) in enumerate(kinds):
            struck = True
            for first in itertools.takewhile(lambda _: struck, range(1 + shift % STRIDE, 1000, STRIDE)):
                with self.subTest(kind=kind, lasting=lasting, first=first), self.home(SETTINGS) as ini:
                    log = ini.parents[1] / "struck"
                    self.run_once(ini, LD_PRELOAD=str(FAULTS), FAULTS=f"{ini.parent} {first} {lasting} {kind} {log}")
                    struck = log.exists()
                    operations |= {log.read_text()} if struck else set()
                    sound = "[12]" if lasting else "1"  # what could not be saved is saved at the end
                    values = f"Niveau=[02]\nCol=(5|8|25)\nLig=2[05]\nSon={sound}\n0=10\n2=(abc|0)"
                    self.assertRegex(ini.read_text(), f"\\A\\[init]\nx=y\n{values}\n\\Z")
        self.assertEqual(sorted(operations), "fchmod fdatasync flock fsync linkat open read rename stat write".split())

    def test_full_disks(self):
        def unlimit(process):
            resource.prlimit(process.pid, resource.RLIMIT_FSIZE, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
        for size in (0, 1, 20):
            for meanwhile, result in ((lambda process: None, SETTINGS), (unlimit, CORRECTED)):
                with self.subTest(size=size, result=result), self.home(SETTINGS) as ini:
                    self.run_once(ini, "prlimit", f"--fsize={size}:unlimited", meanwhile=meanwhile)
                    self.assertEqual(ini.read_bytes(), result)
        # As root without a user namespace, which cannot be had everywhere.
        unshare = ["unshare", "--mount", *(["--map-root-user"] if os.geteuid() else [])]
        if subprocess.run([*unshare, "true"], stderr=subprocess.DEVNULL).returncode:
            self.skipTest("This system lets nobody mount a small disk.")
        with self.subTest("mount point"), self.home(SETTINGS) as ini:
            self.run_once(ini, *unshare, "sh", "-c", 'mount --bind "$0" "$0" && exec "$1"', ini)
            self.assertEqual(ini.read_bytes(), CORRECTED)
        for freed, result in ((False, SETTINGS), (True, CORRECTED)):
            with self.subTest(freed=freed), self.home() as mount, subprocess.Popen(
                    [*unshare, "sh", "-c",
                     'mount -t tmpfs -o size=16k none "$0" && echo ready && exec cat', mount.parent],
                    stdin=subprocess.PIPE, stdout=subprocess.PIPE) as keeper:
                self.assertEqual(keeper.stdout.readline(), b"ready\n")
                ini = pathlib.Path(f"/proc/{keeper.pid}/root{mount}")
                ini.write_bytes(SETTINGS)
                filler = ini.with_name("filler")
                with contextlib.suppress(OSError):
                    filler.write_bytes(bytes(1 << 16))
                self.run_once(ini, meanwhile=lambda process: freed and filler.unlink())
                self.assertEqual(ini.read_bytes(), result)
                keeper.stdin.close()

    def test_files(self):
        for content, best in (
            (b"", 77), (b"[init]\n0=5\n\0", 77), ("[init]\n0=5\n".encode("utf-16"), 77), (b"\n\n", 77),
            (bytes(range(256)) * 99, 77), (b"[init]\nNiveau=0\n0=78\nCo", 78), (b"[init]\n0=5\n0=78", 78),
            (b"\xef\xbb\xbf[init]\r\n0 = 78\r\n", 78),
        ):
            with self.subTest(content=content[:30]), self.home(content, BACKUP) as ini:
                self.run_once(ini)
                self.assertRegex(ini.read_bytes(), b"\n0 ?= ?%d\r?\n" % best)
                rejected = [content] if content and best == 77 else []
                self.assertEqual([file.read_bytes() for file in ini.parent.glob("*.bad")], rejected)
        for name, make, stays in (
            ("gigabyte", lambda ini: os.truncate(ini, 1 << 30) or ini, lambda ini: ini.stat().st_size == 1 << 30),
            ("FIFO", lambda ini: ini.unlink() or os.mkfifo(ini), pathlib.Path.is_fifo),
            ("device", lambda ini: ini.unlink() or ini.symlink_to("/dev/zero"), pathlib.Path.is_symlink),
            ("folder", lambda ini: ini.unlink() or ini.mkdir(), pathlib.Path.is_dir),
            ("loop of links", lambda ini: ini.unlink() or ini.symlink_to(ini), pathlib.Path.is_symlink),
            # Only root can read a file of the mode 0222, so the test makes it readable first.
            *((oct(mode), lambda ini, mode=mode: ini.chmod(mode),
               lambda ini: ini.chmod(0o600) or ini.read_bytes() == SETTINGS) for mode in (0o444, 0o222)),
        ):
            with self.subTest(what=name), self.home(SETTINGS, BACKUP) as ini:
                make(ini)
                self.run_once(ini, *WITHOUT_PRIVILEGES)
                self.assertTrue(stays(ini))

    def test_values(self):
        for value, level, sound, best in (
            ("99999999999999999999", "0", "1", "99999999999999999999"), ("-5", "0", "1", "0"), ("1e9", "0", "1", "1e9"),
            ("1, 2", "0", "1", "0"), ("", "0", "1", "0"), ("nan", "0", "1", "0"), ("1.6", "2", "1", "1.6"),
            ("0.4", "0", "0", "0.4"), ("4.4", "4", "1", "4.4"), ("5", "0", "1", "5"),
        ):
            content = "[init]\n" + "".join(f"{key}={value}\n" for key in ("Niveau", "Col", "Lig", "Son", "0"))
            with self.subTest(value=value), self.home(content.encode()) as ini:
                self.run_once(ini)
                stored = re.findall("=(.*)", ini.read_text())
                self.assertEqual((stored[0], *stored[3:]), (level, sound, best))
                self.assertTrue(8 <= int(stored[1]) <= 1000 and 14 <= int(stored[2]) <= 1000)

    def test_homes(self):
        for base, unset, place in (("relative", (), ".config/"), ("", (), ".config/"), ("relative", ("HOME",), None),
                                   ("", ("HOME", "XDG_CONFIG_HOME"), None), ("", ("XDG_CONFIG_HOME",), ".config/")):
            with self.subTest(base=base, unset=unset), self.home() as ini:
                self.run_once(ini, XDG_CONFIG_HOME=base, unset=unset)
                found = [str(file.relative_to(ini.parent)) for file in ini.parent.rglob("*.ini")]
                self.assertEqual(found, [place + ini.name] if place else [])


if __name__ == "__main__":
    main()
