#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""The folders include each other one way only, and the rules use the standard library alone."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
ALLOWED = {
    "rules": set(),
    "settings": {"<Q", "system"},
    "platform/sound": {"<SDL", "system", "platform/shared_library.h"},
    "platform": {"<Q", "<librsvg", "system"},
    "animation": {"<Q", "platform"},
    "assets": {"<Q", "platform"},
    "about": {"<Q", "platform", "animation", "assets"},
    "mainwindow/board": {"<Q", "rules", "platform", "assets"},
    "mainwindow": {*"<Q rules settings platform platform/sound/sound.h animation assets about mainwindow/board".split()},
}


def source_of(include):
    """The folder of a quoted include, or the library of one in angle brackets; empty for the standard one."""
    if include[0] == '"':
        return include[1:].rpartition("/")[0]
    if include.endswith(".h") or "/" in include or include[1].isupper():
        return next((library for library in ("<Q", "<SDL", "<librsvg") if include.startswith(library)), "system")
    return ""  # the standard library


def faults():
    for folder, allowed in ALLOWED.items():
        sources = [path for path in (ROOT / folder).iterdir() if path.suffix in (".h", ".cpp")]
        if not sources:
            yield f"{folder}: no sources found"
        for path in sources:
            for include in re.findall(r'^#include ([<"][^>"]+)', path.read_text(), re.MULTILINE):
                if not {source_of(include), include[1:]} & (allowed | {folder, ""}):
                    yield f"{path.relative_to(ROOT)} must not include {include[1:]}"


if __name__ == "__main__":
    found = list(faults())
    print("\n".join(found) or "every include points the right way")
    sys.exit(bool(found))
