# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""A player who also knows the windows by what they tell a screen reader, and works them through it."""
import contextlib
import importlib
import os
import subprocess

import model
from desktop import PATIENCE, wait_for
from player import Player

CONTENTS = {"r": "boule rouge", "b": "boule bleue", "v": "boule verte", "j": "boule jaune", "p": "boule magenta",
            "g": "boule grise", ".": "case vide"}


def names(board):
    """What the cells say, row by row."""
    sizes = {cell: f", groupe de {len(group)}" for group in model.groups(board) for cell in group}
    return [f"{CONTENTS[content]}, ligne {y + 1}, colonne {x + 1}{sizes.get((x, y), '')}"
            for y, row in enumerate(zip(*board)) for x, content in enumerate(row)]


def role_of(control):
    """Its name, for a button as newer systems say it."""
    return control.getRoleName().removeprefix("push ")


class ScreenReader(Player):
    def __init__(self, desktop, program, settings):
        """Starts the screen reader, then the program."""
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
        self.heard = []  # announcements, and cells with the focus, new names of cells and table
        self.atspi.Registry.registerEventListener(self._hear, "object:state-changed:showing",
                                                  "object:state-changed:focused",
                                                  "object:property-change:accessible-name")
        super().__init__(desktop, program, settings)

    def _hear(self, event):
        with contextlib.suppress(self.glib.Error):  # it may be gone by now
            role = event.source.getRoleName()
            if "name" in event.type and role in ("table", "table cell"):
                self.heard.append(f"now: {event.source.name}")
            elif event.detail1 and role in ("table cell", "notification"):
                self.heard.append(event.source.name)

    def listen(self):
        """All that was heard since the last press."""
        while self.glib.MainContext.default().iteration(False):
            pass
        return self.heard

    def wait_to_hear(self, sentence):
        wait_for(f"{sentence}, after {self.heard},", lambda: sentence in self.listen())

    def controls(self):
        """All windows and controls that show, except cells."""
        def shows(control):
            return control.getState().contains(self.atspi.STATE_SHOWING) and role_of(control) != "table cell"
        programs = self.atspi.Registry.getDesktop(0)
        return [control for program in programs for control in self.atspi.findAllDescendants(program, shows)]

    def find(self, role, name=""):
        def found():
            self.listen()
            with contextlib.suppress(self.glib.Error, LookupError):
                return next((it for it in self.controls() if role_of(it) == role and name in it.name), None)
        return wait_for(f"{role} {name}", found)

    def ask(self, control):
        """Performs the control's first action, and forgets what was heard before."""
        self.heard.clear()
        control.queryAction().doAction(0)

    def said_of(self, control):
        said = [control.name]
        if role_of(control) in ("button", "link"):
            said += [control.description, control.queryAction().getKeyBinding(0)]
        if role_of(control) == "text":
            said.append(control.queryText().getText(0, -1))
        return f"{role_of(control)}: {', '.join(said)}"

    def cells(self):
        return [cell.name for cell in self.find("table")]

    def press(self, cell, button=1):
        self.ask(self.find("table").queryTable().getAccessibleAt(cell[1], cell[0]))

    def start_new_game(self):
        self.ask(self.find("button", "Nouvelle"))
