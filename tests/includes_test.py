#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""The folders include each other in one direction only, and the rules use nothing but the standard library."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
QT, SYSTEM = r"<Q\w+>", r"<(sys/)?[a-z]+\.h>"
# What a folder may include besides its own headers and the standard library.
ALLOWED = {
    "rules": "nothing else",
    "settings": f"{QT}|{SYSTEM}",
    "platform/sound": fr'<SDL\.h>|{SYSTEM}|"platform/shared_library\.h"',
    "platform": fr"{QT}|<librsvg/rsvg\.h>|{SYSTEM}",
    "animation": fr'{QT}|"platform/\w+\.h"',
    "assets": fr'{QT}|"platform/\w+\.h"',
    "about": fr'{QT}|"(platform|animation|assets)/\w+\.h"',
    "mainwindow/board": fr'{QT}|"(rules|platform|assets)/\w+\.h"',
    "mainwindow": fr'{QT}|"(rules|settings|platform|animation|assets|about|mainwindow/board)/\w+\.h"'
                  r'|"platform/sound/sound\.h"',
}

faults = []
for folder, allowed in ALLOWED.items():
    for source in (path for path in (ROOT / folder).iterdir() if path.suffix in (".h", ".cpp")):
        for include in re.findall(r"^#\s*include\s*(\S+)", source.read_text(), re.MULTILINE):
            if not re.fullmatch(fr'<[a-z_]+>|"{folder}/\w+\.h"|{allowed}', include):
                faults.append(f"{source.relative_to(ROOT)} must not include {include}")
sys.exit("\n".join(faults) or 0)
