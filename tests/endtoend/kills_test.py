#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Ends the real program in every state, with and without a warning, and looks at what it has stored."""
import itertools
import os
import random
import signal
import subprocess
import time

import model
from case import PROGRAM, Case, main
from desktop import PATIENCE, wait_for
from player import Player, centre

SETTINGS = "Col=8\nLig=014\n0=0\n3=300\n"  # the program stores Lig=14 when it ends


def reach_removal(player):
    """Presses the largest group. Returns the points for it once its first balls are gone."""
    board = player.board()
    balls = model.groups(board)[-1]
    player.act(centre(min(balls)), "click", 1)
    wait_for("a move", lambda: player.board() != board)
    return model.points(len(balls))


def reach_sound(player):
    player.desktop.loudspeaker.write_bytes(b"")
    points = reach_removal(player)
    wait_for("the sound", lambda: any(player.desktop.loudspeaker.read_bytes()))
    return points


def reach_about(player):
    player.open_about()
    return 0


def reach_end_panel(player):
    board, presses = player.deal_game(1)
    for cell in presses[:-1]:
        board = player.play(board, cell)
    reach_removal(player)
    wait_for("the panel", lambda: "?" in "".join(player.board()))
    return int(player.stored()["0"])


# Each function brings the game into a state, and returns the best score that must be stored if the game ends there.
REACH = {"idle": lambda player: 0, "removal": reach_removal, "sound": reach_sound, "About": reach_about,
         "end panel": reach_end_panel}


class Kills(Case):
    def test_kills(self):
        """No kill during a move, or while the window closes during a move, costs a best score that was shown."""
        with self.desktop() as desktop:
            for number in range(int(os.environ.get("ROUNDS", 6))):
                player = Player(desktop, PROGRAM, f"{SETTINGS}Son=0\n")
                _, shown = player.play_largest(player.board())
                coming = shown + reach_removal(player)
                if number % 2:
                    player.act("key", "alt+F4")
                time.sleep(random.uniform(0, 0.4))
                player.process.kill()
                player.process.wait()
                self.assertRegex(player.file.read_text(), r"\A\[init\]\nCol=8\nLig=0?14\n"
                                 rf"0=({shown}|{coming})\n3=300\nSon=0\nNiveau=0\n\Z")

    def test_signals(self):
        signals = itertools.cycle((signal.SIGHUP, signal.SIGINT, signal.SIGTERM))
        with self.desktop() as desktop:
            for (state, reach), number in zip(REACH.items(), signals):
                with self.subTest(state=state, signal=number):
                    sound = str(int(state == "sound"))
                    player = Player(desktop, PROGRAM, f"{SETTINGS}Son={sound}\n")
                    best = reach(player)
                    player.process.send_signal(number)
                    self.assertEqual(player.process.wait(PATIENCE), 0)
                    self.assertEqual(player.stored(), {"Col": "8", "Lig": "14", "0": str(best), "3": "300",
                                                       "Son": sound, "Niveau": "0"})

    def test_session_end(self):
        """The session manager makes all programs save, and then it ends them; or it dies without a word."""
        for end in (signal.SIGTERM, signal.SIGKILL):
            with self.subTest(end), self.desktop() as desktop:
                (desktop.home / ".xsmstartup").write_text('sh -c "echo $SESSION_MANAGER >address"\n')
                manager = desktop.start("xsm", errors=subprocess.DEVNULL)
                address = desktop.home / "address"
                wait_for("the session manager", lambda: address.exists() and address.read_text())
                desktop.environment["SESSION_MANAGER"] = address.read_text().strip()
                player = Player(desktop, PROGRAM, f"{SETTINGS}Son=0\n")
                player.open_about()
                if end == signal.SIGTERM:
                    self.make_checkpoint(desktop)
                    wait_for("the settings", lambda: player.stored()["Lig"] == "14")
                    self.assertIsNone(player.process.poll(), "so far, nothing told it to end")
                manager.send_signal(end)
                self.assertEqual(player.process.wait(PATIENCE), 0)
                self.assertEqual(player.stored()["Lig"], "14")

    def make_checkpoint(self, desktop):
        """Presses "Checkpoint" in the window of xsm, types a name for the session, and presses "Checkpoint" again."""
        window = ("search", "--sync", "--onlyvisible")
        place = ("mousemove", "--window", "%1")
        desktop.xdotool(*window, "^xsm", "windowactivate", "--sync", *place, 20, 48, "click", 1)
        desktop.xdotool(*window, "^Checkpoint$", *place, 171, 18, "click", 1, "type", "--args", 1, "name",
                        *place, 49, 137, "click", 1)

    def test_displays_gone(self):
        for state in ("idle", "removal", "sound", "About"):
            with self.subTest(state), self.player(f"{SETTINGS}Son=1\n") as player:
                _, points = player.play_largest(player.board())
                REACH[state](player)
                player.desktop.display.terminate()
                player.process.wait(PATIENCE)
                self.assertGreaterEqual(int(player.stored()["0"]), points)


if __name__ == "__main__":
    main()
