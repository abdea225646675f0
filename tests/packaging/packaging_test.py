#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Installs the program and builds its package, then looks at both with the eyes of those who take them.

Usage: packaging_test.py BUILD, where BUILD is the folder of a build whose program is there.
"""
import datetime
import email.utils
import gzip
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(sys.argv[1]).resolve()
LISTING = (ROOT / "CMakeLists.txt").read_text()
VERSION = re.search(r"VERSION (\d+\.\d+\.\d+)", LISTING)[1]
DATE = re.search(r"RELEASE_DATE ([\d-]+)", LISTING)[1]
MANUALS = ("man/man6/zampotine.6.gz", "man/fr/man6/zampotine.6.gz")
METAINFO = "metainfo/org.example.zampotine.metainfo.xml"


def run(*command, **environment):
    """The status of the command, and all that it says."""
    done = subprocess.run(list(map(str, command)), cwd=ROOT, env={**os.environ, **environment}, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return done.returncode, done.stdout


class Packaging(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(dir=BUILD)))
        os.environ.pop("SOURCE_DATE_EPOCH", None)
        subprocess.run([ROOT / "packaging/deb.sh"], check=True)
        cls.package = next((ROOT / "build/deb").glob(f"zampotine_{VERSION}_*.deb"))
        subprocess.run(["dpkg-deb", "--extract", cls.package, cls.folder / "deb"], check=True)
        cls.share = cls.folder / "deb/usr/share"

    def test_validators_say_nothing(self):
        man = ("man", "--warnings", "--encoding=UTF-8", "--local-file", "--troff-device=utf8", "--ditroff")
        clone = self.folder / "clone"
        self.assertEqual(run("git", "clone", "--quiet", ROOT, clone)[0], 0)  # without the stray files of a work tree
        run("reuse", "--root", clone, "convert-dep5")  # newer versions warn of .reuse/dep5, older ones know only that
        old_appstream = (3, "I: org.example.zampotine:11: unknown-tag developer\n\n✘ Validation failed: infos: 1\n")
        for command, *allowed in (
            (("desktop-file-validate", self.share / "applications/zampotine.desktop"), (0, "")),
            (("appstreamcli", "validate", "--no-net", "--strict", "--pedantic", self.share / METAINFO),
             (0, "✔ Validation was successful.\n"), old_appstream),
            (("lintian", "--allow-root", "--pedantic", "--no-override", self.package), (0, "")),
            (("reuse", "--root", clone, "lint", "--quiet"), (0, "")),
            *((("sh", "-c", '"$@" >/dev/null', "sh", *man, self.share / manual), (0, "")) for manual in MANUALS),
        ):
            with self.subTest(" ".join(map(str, command))):
                self.assertIn(run(*command, LC_ALL="C.UTF-8", MANROFFSEQ="", MANWIDTH="80"), allowed)

    def test_one_version_and_date(self):
        day = email.utils.format_datetime(datetime.datetime.fromisoformat(DATE + "T00:00:00+00:00"))
        for file, text in (*((manual, f'"{DATE}" "Zampotine {VERSION}"') for manual in MANUALS),
                           (METAINFO, f'<release version="{VERSION}" date="{DATE}"/>'),
                           ("doc/zampotine/changelog.gz", f"zampotine ({VERSION}) "),
                           ("doc/zampotine/changelog.gz", f"  {day}\n")):
            with self.subTest(file):
                opened = gzip.open if file.endswith(".gz") else open
                with opened(self.share / file, "rt", encoding="utf-8") as content:
                    self.assertIn(text, content.read())
        released = re.findall("^## (?!Unreleased)(.*)", (ROOT / "CHANGELOG.md").read_text(), re.MULTILINE)
        self.assertIn(released[:1], ([], [f"{VERSION} ({DATE})"]), "the newest version of CHANGELOG.md, if any")

    def test_installed_program_finds_its_sounds(self):
        prefix = self.folder / "prefix"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        for program in (prefix / "bin/zampotine", self.folder / "deb/usr/games/zampotine"):
            with self.subTest(program=program):
                status, said = run(ROOT / "tests/endtoend/endtoend_test.py", program, BUILD, "EndToEnd.test_presses")
                self.assertEqual(status, 0, said)
        subprocess.run(["cmake", "--build", BUILD, "--target", "uninstall"], check=True, stdout=subprocess.DEVNULL)
        self.assertEqual([path for path in prefix.rglob("*") if not path.is_dir()], [])
        self.assertFalse((prefix / "share/zampotine").exists())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
