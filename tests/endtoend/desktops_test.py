#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Shows the real program at home on desktops of many kinds."""
import re

import numpy as np

import model
from case import PROGRAM, Case, main
from desktop import PATIENCE, wait_for
from player import BACKGROUND, BOARD, CELL, COLUMNS_BOX, NEW_GAME, Player, centre
from wayland import WaylandPlayer

SETTINGS = "Col=25\nLig=20\nSon=0\n"
LARGE_FONT = "DejaVu Serif,20,-1,5,50,0,0,0,0,0"
KDE_SETTINGS = f"[General]\nfont={LARGE_FONT}\ntoolBarFont={LARGE_FONT}\nwidgetStyle=windows\n" + "".join(
    f"[Colors:{part}]\nBackgroundNormal=30,0,30\nBackgroundAlternate=30,0,30\nForegroundNormal=255,255,0\n"
    for part in ("Window", "View", "Button", "Selection", "Tooltip"))
KDE = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}
GNOME = {"XDG_CURRENT_DESKTOP": "GNOME", "GTK_THEME": "Adwaita:dark", "QT_STYLE_OVERRIDE": "windows"}


class Desktops(Case):
    def test_sessions(self):
        """Dark colours, large fonts and other styles of the desktop change nothing in the windows and the tool tip."""
        looks = {}
        for session in ({}, KDE, GNOME):
            with self.subTest(session), self.desktop(session=session) as desktop:
                (desktop.home / "kdeglobals").write_text(KDE_SETTINGS)
                player = Player(desktop, PROGRAM, SETTINGS)
                left, top, width, _ = player.geometry()

                def screen_without_balls():
                    screen = np.array(desktop.screenshot().convert("RGB"))
                    screen[top + BOARD:top + BOARD + 20 * CELL, left + BOARD:left + BOARD + 25 * CELL] = 0
                    return screen

                player.act(player.in_panel(COLUMNS_BOX), "click", 1, "key", "ctrl+a", player.in_panel((72, 125)))
                wait_for("a tool tip beyond the window", lambda: desktop.screenshot().getbbox()[2] > left + width)
                main_look = looks.setdefault("main", screen_without_balls())
                # The cursor in the text box blinks: only from time to time it is as in the other picture.
                wait_for("the same main window", lambda: (screen_without_balls() == main_look).all())
                still = desktop.still(player.open_about())
                self.assertTrue((still == looks.setdefault("About", still)).all(), "the same About window")

    def test_two_screens(self):
        with self.desktop(2400, 1200) as desktop:
            for monitor in ("left 1400/370x1000/265+0+0 screen", "right 1000/265x800/212+1400+300 none"):
                desktop.run("xrandr", "--setmonitor", *monitor.split())
            player = Player(desktop, PROGRAM, SETTINGS)
            # The middle of the second screen lies 1200 pixels to the right of the first one's, and 200 below.
            for across, x, y in (((1000, 280), 1200, 200), ((-900, 20), 0, 0)):
                player.drag(BACKGROUND, 1, across)
                about = player.open_about()
                self.assertEqual(player.geometry(about)[:2], (493 + x, 328 + y))
                player.leave_about(about, "key", "Escape")
                player.click(NEW_GAME)
                wait_for("a new game in the middle", lambda: player.geometry()[:2] == (331 + x, 200 + y))

    def play_and_leave(self, player):
        board = player.board()
        balls = model.groups(board)[-1]
        player.act(centre(min(balls)), "click", 1, BACKGROUND)
        player.expect_board(model.without(board, balls), f"{min(balls)} on\n{model.text(board)}")
        player.drag(BACKGROUND, 1, (40, -33), (-60, 50))
        player.drag(BACKGROUND, 3, (20, 10))
        player.leave_about(player.open_about(), "key", "Escape")
        player.enter("12", "15")
        player.click(NEW_GAME)
        wait_for("a board as typed", lambda: player.board_size() == (12, 15))
        player.process.terminate()
        self.assertEqual(player.process.wait(PATIENCE), 0)

    def test_no_window_manager(self):
        with self.player(SETTINGS, managed=False) as player:
            self.play_and_leave(player)

    def test_wayland(self):
        with self.desktop(1400, 1000, managed=False) as desktop:
            player = WaylandPlayer(desktop, PROGRAM, SETTINGS)
            self.play_and_leave(player)
            # By this name the desktop finds the windows' icon.
            self.assertEqual(set(re.findall(r'\.set_app_id\("(.*)"\)', player.log.read_text())), {"zampotine"})


if __name__ == "__main__":
    main()
