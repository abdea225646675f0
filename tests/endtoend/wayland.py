# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""A player on Wayland: the compositor shows its whole screen as one window of the X display."""
import numpy as np

from desktop import wait_for
from player import Player

LOOK = ("[shell]\npanel-position=none\nbackground-color=0xff000000\nstartup-animation=none\nclose-animation=none\n"
        "[input-method]\npath=\n")


class WaylandPlayer(Player):
    """Wayland tells nobody where windows are. This finds them on the black screen and knows them by size."""
    AFTER_POINTING = ("sleep", 0.1)
    # The compositor may start a drag late. Then it waits for the pointer's next step.
    BEFORE_DRAGGING = ("mousemove_relative", 1, 0)

    def __init__(self, desktop, program, settings):
        (desktop.home / "weston.ini").write_text(LOOK)
        self.log = desktop.home / "weston.log"
        width, height = desktop.screenshot().size
        with open(self.log, "w", encoding="utf-8") as log:
            desktop.start("env", "WAYLAND_DEBUG=server", "weston", "--backend=x11-backend.so", "--use-pixman",
                          f"--width={width}", f"--height={height}", "--idle-time=0", "--socket=screen", errors=log)
        wait_for("the compositor's socket", (desktop.home / "screen").exists)
        wait_for("the compositor", lambda: desktop.xdotool("search", "--onlyvisible", "--class", "Weston"))
        # The compositor follows the pointer's steps, not its place: only at the edges both are sure to agree.
        for corner in ((width - 1, height - 1), (0, 0)) * 3:
            desktop.xdotool("mousemove", *corner, "sleep", 0.1)
        # On some processors the graphics driver leaks, and it is unloaded before the leak checker looks. So leaks.supp
        # names the library that loaded it, which only a full stack shows.
        desktop.environment |= {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "screen",
                                "ASAN_OPTIONS": "fast_unwind_on_malloc=0"}
        super().__init__(desktop, program, settings)

    def visible(self):
        return self.geometry()[2:]

    def geometry(self, window=None):
        shown = np.array(self.desktop.screenshot().convert("RGB")).any(2)
        # More than the pointer.
        columns, rows = (np.flatnonzero(shown.sum(axis) > 100) for axis in (0, 1))
        return (columns[0], rows[0], np.ptp(columns) + 1, np.ptp(rows) + 1) if columns.size and rows.size else ()

    def expect_window(self, what, condition):
        return wait_for(what, lambda: condition(self.visible()) and self.visible())
