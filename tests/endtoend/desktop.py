# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""A screen of its own with a window manager, a loudspeaker and a player's home folder that is thrown away."""
import contextlib
import os
import pathlib
import re
import subprocess
import tempfile
import time

import numpy as np
from PIL import ImageGrab

PATIENCE = 20  # seconds until something that must come counts as missing
# No binding of the pointer: for those, the window manager would hold back each click, and keys would overtake it.
WINDOW_MANAGER = """<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse/>
<keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard></openbox_config>"""


def wait_for(what, condition):
    deadline = time.monotonic() + PATIENCE
    while not (value := condition()):
        if time.monotonic() > deadline:
            raise AssertionError(f"{what}: nothing of it within {PATIENCE} s")
        time.sleep(0.01)
    return value


class Desktop(contextlib.ExitStack):
    def __init__(self, folder, width, height, managed=True, session=None):
        """Whatever is started ends with this context, or with this process. A session is more variables of the
        environment. Without a window manager, the window under the pointer has the keyboard."""
        super().__init__()
        self.home = home = pathlib.Path(self.enter_context(tempfile.TemporaryDirectory(dir=folder)))
        self.loudspeaker = home / "loudspeaker"  # a file that grows at the speed of the sound
        self.environment = {
            **os.environ,
            **dict.fromkeys(("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"), str(home)),
            "PATH": f"{home}:{os.environ['PATH']}",
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",
            "GSETTINGS_BACKEND": "memory",
            "QT_QPA_PLATFORM": "xcb",
            "SDL_AUDIODRIVER": "disk",
            "SDL_DISKAUDIOFILE": str(self.loudspeaker),
            **(session or {}),
        }
        # This program opens addresses on other desktops. Here it writes them down.
        self.opened = home / "opened"
        opener = home / "xdg-open"
        opener.write_text(f'#!/bin/sh\necho "$@" >>"{self.opened}"\n')
        opener.chmod(0o755)
        self.managed = managed
        # By default, the display restarts when its last client leaves, and drops clients that connect meanwhile. It
        # also repeats keys, which a busy machine may hold down for long.
        self.display = self.start("Xvfb", "-noreset", "-r", "-displayfd", "1", "-screen", "0", f"{width}x{height}x24",
                                  output=subprocess.PIPE)
        self.environment["DISPLAY"] = ":" + self.display.stdout.readline().decode().strip()
        if managed:
            # Before the window manager is ready, windows may get lost between it and the display.
            (home / "openbox.xml").write_text(WINDOW_MANAGER)
            self.start("openbox", "--config-file", home / "openbox.xml", "--startup", "touch ready")
            wait_for("the window manager", (home / "ready").exists)

    def start(self, *command, stdin=None, output=None, errors=None):
        """Starts a process, which ends with the desktop. If this process is killed, the kernel ends it."""
        process = self.enter_context(subprocess.Popen(
            ["setpriv", "--pdeathsig", "TERM", *command], env=self.environment, cwd=self.home,
            stdin=stdin, stdout=output, stderr=errors))
        self.callback(process.terminate if command[0] == "Xvfb" else process.kill)
        return process

    def xdotool(self, *words):
        """What the command prints; nothing if it fails."""
        # With the keyboard tables of 2025, xdotool would press Alt as well for the names of these keys.
        return self.run("xdotool", *({"F1": "67", "F2": "68"}.get(word, str(word)) for word in words))

    def run(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=PATIENCE).stdout

    def screenshot(self, area=None):
        return ImageGrab.grab(area, xdisplay=self.environment["DISPLAY"])

    def geometry(self, window):
        """Left, top, width and height."""
        said = self.xdotool("getwindowgeometry", "--shell", window)
        return tuple(map(int, re.findall(r"(?:X|Y|WIDTH|HEIGHT)=(-?\d+)", said)))

    def windows(self):
        """Those of the program that show."""
        return self.xdotool("search", "--onlyvisible", "^Zampotine$").split()

    def still(self, window):
        """The pixels as they are in most looks at a window with bouncing balls: what lies under the balls."""
        left, top, width, height = self.geometry(window)
        looks = {}  # each counts once, however long the program stands still

        def enough():
            look = np.array(self.screenshot((left, top, left + width, top + height)))
            looks[look.tobytes()] = look
            time.sleep(0.05)  # a ball must not be at one place in half of them
            return len(looks) > 16

        wait_for("bouncing balls", enough)
        return np.median(list(looks.values()), 0)
