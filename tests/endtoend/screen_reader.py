# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""A screen reader at the running program: knows its windows only by what they say of themselves."""
import contextlib
import importlib
import os
import re
import subprocess

from desktop import PATIENCE, wait_for

COLOURS = {"rouge": "r", "bleue": "b", "verte": "v", "jaune": "j", "magenta": "p", "grise": "g", None: "."}
CELL = re.compile(r"(?:boule (\w+)|case vide), ligne (\d+), colonne (\d+)(?:, groupe de (\d+))?")


def role_of(control):
    """Its name, for a button as newer systems say it."""
    return control.getRoleName().removeprefix("push ")


class ScreenReader:
    def __init__(self, desktop):
        """To be there before the program starts."""
        bus = desktop.start("dbus-daemon", "--session", "--nofork", "--print-address", output=subprocess.PIPE)
        desktop.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        os.environ |= desktop.environment
        desktop.run("dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
                    "org.freedesktop.DBus.Properties.Set", "string:org.a11y.Status", "string:IsEnabled",
                    "variant:boolean:true")
        # It connects to the bus when it is imported.
        self.atspi = importlib.import_module("pyatspi")
        self.atspi.setTimeout(1000 * PATIENCE, 1000 * PATIENCE)
        self.glib = importlib.import_module("gi.repository.GLib")
        self.heard = []  # announcements, and cells or tables that got the focus or changed
        self.atspi.Registry.registerEventListener(self._hear, "object:state-changed:showing",
                                                  "object:state-changed:focused",
                                                  "object:property-change:accessible-name")

    def _hear(self, event):
        with contextlib.suppress(self.glib.Error):  # it may be gone by now
            role = event.source.getRoleName()
            if (event.detail1 or "name" in event.type) and role in ("notification", "table", "table cell"):
                self.heard.append(("now: " if "name" in event.type else "") + event.source.name)

    def listen(self):
        while self.glib.MainContext.default().iteration(False):
            pass

    def wait_to_hear(self, *sentences):
        def heard():
            self.listen()
            return all(sentence in self.heard for sentence in sentences)
        wait_for(f"{sentences}, after {self.heard},", heard)

    def windows(self):
        return [window for program in self.atspi.Registry.getDesktop(0) for window in program]

    def all(self):
        """All controls that show, cells excepted."""
        def below(control):
            yield control
            if control.getRoleName() != "table":
                for child in control:
                    yield from below(child)
        for window in self.windows():
            yield from (it for it in below(window) if it.getState().contains(self.atspi.STATE_SHOWING))

    def find(self, role, name=""):
        def found():
            self.listen()
            with contextlib.suppress(self.glib.Error, LookupError):
                return next((it for it in self.all() if role_of(it) == role and name in it.name), None)
        return wait_for(f"{role} {name}", found)

    def press(self, control):
        """Presses, and forgets what was heard before."""
        self.heard.clear()
        action = control.queryAction()
        action.doAction([action.getName(k) for k in range(action.nActions)].index("Press"))

    def cells(self):
        """What all cells say, by their (column, row): content and size of the group."""
        self.listen()
        table = self.find("table", "Plateau")
        said = [CELL.fullmatch(cell.name).groups() for cell in table]
        return {(int(column) - 1, int(row) - 1): (COLOURS[colour], int(group or 0))
                for colour, row, column, group in said}

    def board(self):
        cells = self.cells()
        columns, rows = (max(place[axis] for place in cells) + 1 for axis in (0, 1))
        return tuple("".join(cells[column, row][0] for row in range(rows)) for column in range(columns))
