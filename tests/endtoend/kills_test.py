#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Ends the real program at every moment of its life, with and without a warning, and looks at what it left behind."""
import itertools
import os
import random
import re
import signal
import statistics
import subprocess
import time

import model
from case import FAULTS, PROGRAM, Case, main
from desktop import PATIENCE, wait_for
from player import Player, centre

SMALL = "Col=8\nLig=014\n"  # what becomes 14 at the start, and is stored at the end


def press_largest_group(player, board):
    """Returns the points that it is worth, when its first balls are gone."""
    balls = model.groups(board)[-1]
    player.act(centre(min(balls)), "click", 1)
    wait_for("a move", lambda: player.board() != board)
    return model.points(len(balls))


def reach_removal(player):
    return press_largest_group(player, player.board())


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
    score = 0
    for cell in presses[:-1]:
        score += model.points(len(model.group(board, cell)))
        board = player.play(board, cell)
    score += press_largest_group(player, board)
    wait_for("the panel", lambda: "?" in "".join(player.board()))
    return score


REACH = {"idle": lambda player: 0, "removal": reach_removal, "sound": reach_sound, "About": reach_about,
         "end panel": reach_end_panel}


class Kills(Case):
    def test_kills(self):
        rounds, chance = int(os.environ.get("ROUNDS", 20)), random.Random(os.environ.get("SEED", 5))
        starts = []
        self.assertTrue(FAULTS.exists(), "else it would be left out without a word")
        with self.desktop() as desktop:
            plain = dict(desktop.environment)
            slow = {"LD_PRELOAD": str(FAULTS), "FAULTS": f"{desktop.home} 1 1 -2"}  # saves last, so that kills hit them
            file = desktop.home / f"{PROGRAM.stem}.ini"
            file.write_text(f"[init]\n{SMALL}Son=0\n0=0\n3=300\n")
            best = 0
            for number in range(rounds):
                desktop.environment = plain | (slow if chance.random() < 0.5 else {})
                moment = chance.choice(("start", "reset", "move", "close"))
                began = time.monotonic()
                if moment == "start":
                    process, possible = desktop.start(PROGRAM), {best}
                else:
                    player = Player(desktop, PROGRAM)
                    starts.append(time.monotonic() - began)
                    process, possible = player.process, {best, 0}
                    player.act("key", "ctrl+Delete")
                    if moment != "reset":
                        wait_for("the reset", lambda: player.stored()["0"] == "0")
                        board = player.board()
                        largest = model.groups(board)[-1]
                        board, best = player.play(board, min(largest)), model.points(len(largest))
                        # What it shows by now, no kill may cost.
                        possible = {best}
                    if moment == "move":
                        possible |= {best + press_largest_group(player, board)}
                    if moment == "close":
                        player.act("key", "alt+F4")
                time.sleep(chance.uniform(0, 0.4))
                process.kill()
                process.wait()
                with self.subTest(number=number, moment=moment):
                    self.assertRegex(file.read_text(), r"\A\[init\]\n(\w+=\w+\n)+\Z")
                    stored = dict(re.findall("(.+)=(.*)", file.read_text()))
                    self.assertEqual(stored["3"], "300")
                    self.assertIn(int(stored["0"]), possible)
                    self.assertLess(len(list(desktop.home.glob("*.ini*"))), 6, "files pile up")
                best = int(stored["0"])
            file.with_suffix(".ini.aBcDeF.part").touch()  # few kills leave one behind
            file.write_text(re.sub("(?m)^0=.*", "0=5", file.read_text()))
            player = Player(desktop, PROGRAM)
            player.act("key", "ctrl+Delete")
            wait_for("the reset", lambda: player.stored()["0"] == "0")
            player.process.terminate()
            self.assertEqual(player.process.wait(PATIENCE), 0)
            self.assertEqual(sorted(left.suffix for left in desktop.home.glob("*.ini*")), [".bak", ".ini", ".lock"])
            print(f"{rounds} kills; seconds to a board: {statistics.median(starts):.2f}, at most {max(starts):.2f}")

    def test_signals(self):
        signals = (signal.SIGTERM, signal.SIGINT, signal.SIGHUP)
        with self.desktop() as desktop:
            for state, number in list(itertools.product(REACH, signals))[::int(os.environ.get("STRIDE", 2))]:
                with self.subTest(state=state, signal=number):
                    sound = str(int(state == "sound"))
                    player = Player(desktop, PROGRAM, f"{SMALL}Son={sound}\n")
                    score = REACH[state](player)
                    player.process.send_signal(number)
                    self.assertEqual(player.process.wait(PATIENCE), 0)
                    stored = {"Niveau": "0", "Col": "8", "Lig": "14", "Son": sound}
                    self.assertEqual(player.stored(), stored | ({"0": str(score)} if score else {}))

    def test_session_end(self):
        stored = {"Niveau": "0", "Col": "17", "Lig": "19", "Son": "0"}
        for is_orderly in (True, False):
            with self.subTest(is_orderly=is_orderly), self.desktop() as desktop:
                (desktop.home / ".xsmstartup").write_text('sh -c "echo $SESSION_MANAGER >address"\n')
                manager = desktop.start("xsm", errors=subprocess.DEVNULL)
                address = desktop.home / "address"
                wait_for("the session manager", lambda: address.exists() and address.read_text())
                desktop.environment["SESSION_MANAGER"] = address.read_text().strip()
                other = desktop.start("smproxy")
                player = Player(desktop, PROGRAM, f"{SMALL}Son=0\n")
                player.enter("17", "19")
                player.open_about()
                if is_orderly:
                    other.send_signal(signal.SIGSTOP)  # all wait for it until the session may end
                    self.shut_down(desktop, player)
                    wait_for("the settings", lambda: player.stored() == stored)
                    self.assertIsNone(player.process.poll(), "that it is told to end")
                    other.send_signal(signal.SIGCONT)
                else:
                    manager.kill()
                self.assertEqual(player.process.wait(PATIENCE), 0)
                self.assertEqual(player.stored(), stored)

    def shut_down(self, desktop, player):
        window = wait_for("its window", lambda: desktop.xdotool("search", "--onlyvisible", "^xsm").strip())
        desktop.xdotool("windowactivate", "--sync", window)
        player.act((143, 28), "mousedown", 1, window=window)
        wait_for("its menu", lambda: player.look((100, 80), (230, 94), window).any())
        player.act((143, 57), "mouseup", 1, window=window)
        dialog = wait_for("its dialog", lambda: desktop.xdotool("search", "--onlyvisible", "^Shutdown$").strip())
        player.act((170, -2), "click", 1, "type", "name", window=dialog)
        player.act((48, 117), "click", 1, window=dialog)

    def test_displays_gone(self):
        for is_display, state in itertools.product((True, False), ("idle", "removal", "sound", "About")):
            with self.subTest(is_display=is_display, state=state), self.player(f"{SMALL}Son=1\n") as player:
                board = player.board()
                largest = model.groups(board)[-1]
                player.play(board, min(largest))
                REACH[state](player)
                if is_display:
                    player.desktop.display.terminate()
                else:
                    player.desktop.xdotool("windowkill", player.visible())
                player.process.wait(PATIENCE)
                self.assertGreaterEqual(int(player.stored()["0"]), model.points(len(largest)))


if __name__ == "__main__":
    main()
