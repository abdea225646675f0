# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""A screen reader at the running program: knows its windows only by what they say of themselves."""
import contextlib
import os
import subprocess

from gi.repository import GLib

import model
from desktop import PATIENCE, wait_for

CONTENTS = {"r": "boule rouge", "b": "boule bleue", "v": "boule verte", "j": "boule jaune", "p": "boule magenta",
            "g": "boule grise", ".": "case vide"}


def names(board):
    """What the cells must say, row by row."""
    sizes = {cell: f", groupe de {len(group)}" for group in model.groups(board) for cell in group}
    return [f"{CONTENTS[content]}, ligne {y + 1}, colonne {x + 1}{sizes.get((x, y), '')}"
            for y, row in enumerate(zip(*board)) for x, content in enumerate(row)]


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
        import pyatspi  # which connects to the bus at once
        self.atspi = pyatspi
        pyatspi.setTimeout(1000 * PATIENCE, 1000 * PATIENCE)
        self.heard = []  # announcements, cells that got the focus, and new names of cells and table
        pyatspi.Registry.registerEventListener(self._hear, "object:state-changed:showing",
                                               "object:state-changed:focused", "object:property-change:accessible-name")

    def _hear(self, event):
        with contextlib.suppress(GLib.Error):  # it may be gone by now
            role = event.source.getRoleName()
            if "name" in event.type and role in ("table", "table cell"):
                self.heard.append(f"now: {event.source.name}")
            elif event.detail1 and role in ("table cell", "notification"):
                self.heard.append(event.source.name)

    def listen(self):
        """All that was heard since the last action."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self.heard

    def wait_to_hear(self, sentence):
        wait_for(f"{sentence}, after {self.heard},", lambda: sentence in self.listen())

    def controls(self, role="", name=""):
        """The windows and controls that show, cells excepted: all, or those of this role whose name has this text."""
        def is_meant(control):
            shows = control.getState().contains(self.atspi.STATE_SHOWING) and role_of(control) != "table cell"
            return shows and role in ("", role_of(control)) and name in control.name
        self.listen()
        with contextlib.suppress(GLib.Error, LookupError):  # while windows come and go
            return self.atspi.findAllDescendants(self.atspi.Registry.getDesktop(0)[0], is_meant)

    def find(self, role, name=""):
        return wait_for(f"{role} {name}", lambda: self.controls(role, name))[0]

    def said_of(self, control):
        """Its role and name, and for a button or link its description and key."""
        said = [control.name]
        if role_of(control) in ("button", "link"):
            said += [control.description, control.queryAction().getKeyBinding(0)]
        return f"{role_of(control)}: {', '.join(filter(None, said))}"

    def ask(self, control):
        """Performs the control's first action, and forgets what was heard before."""
        self.listen().clear()
        control.queryAction().doAction(0)
