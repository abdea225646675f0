#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Builds the package and installs the program, then checks both.

Usage: packaging_test.py BUILD, where BUILD is the folder of a build of the program.
"""
import datetime
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
VERSION, DATE = re.search(r"\n  VERSION (\S+)\n.*RELEASE_DATE ([\d-]+)", LISTING, re.DOTALL).groups()


class Packaging(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        os.environ["LC_ALL"] = "C.UTF-8"
        subprocess.run([ROOT / "packaging/deb.sh"], check=True)
        (cls.package,) = (ROOT / "build/deb").glob(f"zampotine_{VERSION}_*.deb")
        os.chdir(cls.enterClassContext(tempfile.TemporaryDirectory(dir=BUILD)))
        subprocess.run(["dpkg-deb", "--extract", cls.package, "."], check=True)

    def test_validators_find_nothing(self):
        old_appstream = (3, "I: org.example.zampotine:11: unknown-tag developer\n\n✘ Validation failed: infos: 1")
        # Newer versions of reuse warn of .reuse/dep5; older versions know no other file. A clone has no stray files.
        convert = "reuse convert-dep5 >/dev/null 2>&1"
        for command, *allowed in (
            ("desktop-file-validate usr/share/applications/zampotine.desktop", (0, "")),
            ("appstreamcli validate --no-net --strict --pedantic usr/share/metainfo/*.xml",
             (0, "✔ Validation was successful."), old_appstream),
            (f"lintian --allow-root --pedantic --no-override '{self.package}'", (0, "")),
            (f"git clone --quiet '{ROOT}' clone && cd clone && {{ {convert}; reuse lint --quiet; }}", (0, "")),
        ):
            with self.subTest(command):
                self.assertIn(subprocess.getstatusoutput(command), allowed)

    def test_documents_name_one_version_and_date(self):
        day = datetime.date.fromisoformat(DATE).strftime("%a, %d %b %Y")
        for file in ("man/man6/*", "man/fr/man6/*", "metainfo/*", "doc/zampotine/changelog.gz"):
            text = subprocess.getoutput(f"zcat --force usr/share/{file}")
            self.assertEqual(set(re.findall(r"\d+\.\d+\.\d+", text)), {VERSION}, file)
            self.assertIn(set(re.findall(r"\d{4}-\d\d-\d\d|\w{3}, \d\d \w{3} \d{4}", text)), ({DATE}, {day}), file)
        released = re.findall("^## (?!Unreleased)(.*)", (ROOT / "CHANGELOG.md").read_text(), re.MULTILINE)
        self.assertIn(released[:1], ([], [f"{VERSION} ({DATE})"]), "the newest version of CHANGELOG.md, if any")

    def test_packaged_program_finds_its_sounds(self):
        play = ROOT / "tests/endtoend/endtoend_test.py"
        subprocess.run([play, "usr/games/zampotine", BUILD, "EndToEnd.test_presses"], check=True)

    def test_uninstall_leaves_nothing_of_an_installation(self):
        prefix = pathlib.Path("prefix").resolve()
        subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True)
        self.assertTrue((prefix / "share/zampotine/sounds/son2.WAV").exists())
        subprocess.run(["cmake", "--build", BUILD, "--target", "uninstall"], check=True)
        self.assertEqual([*prefix.rglob("*zampotine*")], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
