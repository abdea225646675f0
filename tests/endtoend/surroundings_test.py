#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Plays the real program where sound, screens and window managers do not behave."""
import concurrent.futures
import contextlib
import os
import pathlib
import socket
import subprocess
import time

import model
from case import PROGRAM, Case, main
from desktop import PATIENCE, wait_for
from player import BACKGROUND, NEW_GAME, Player

SETTINGS = "Col=25\nLig=20\nNiveau=4\n"


class Surroundings(Case):
    score = 0

    def play(self, player, board):
        """Plays the largest group. Returns the board after it and how many seconds that took."""
        began = time.monotonic()
        largest = model.groups(board)[-1]
        self.score += model.points(len(largest))
        return player.play(board, min(largest)), round(time.monotonic() - began, 2)

    def finish(self, player):
        """Plays once more and leaves."""
        self.play(player, player.board())
        player.process.terminate()
        self.assertEqual(player.process.wait(PATIENCE), 0)
        self.assertEqual(player.stored()["4"], str(self.score))
        self.score = 0

    @contextlib.contextmanager
    def stalling_device(self, desktop):
        """A device that takes the beginning of a sound and no more."""
        os.mkfifo(desktop.loudspeaker)
        with open(desktop.loudspeaker, "r+b", buffering=0):
            listener = desktop.start("head", "-c", "20000", desktop.loudspeaker, output=subprocess.DEVNULL)
            yield
            self.assertEqual(listener.wait(PATIENCE), 0, "it has heard something")

    @contextlib.contextmanager
    def silent_server(self, desktop, greeting=b""):
        """A server that takes every connection, sends the greeting to the first one, and no more."""
        with socket.socket(socket.AF_UNIX) as server, concurrent.futures.ThreadPoolExecutor() as pool:
            server.bind(str(desktop.home / "silent"))
            server.listen()
            server.settimeout(PATIENCE)
            first = pool.submit(lambda: [connection := server.accept()[0], connection.send(greeting)])
            yield
            first.result()[0].close()

    def test_sounds(self):
        for name, session, device in (
            ("no device", {"SDL_AUDIODRIVER": "alsa", "ALSA_CONFIG_PATH": "/dev/null"}, contextlib.nullcontext),
            ("no such driver", {"SDL_AUDIODRIVER": "none"}, contextlib.nullcontext),
            ("stalling device", {}, self.stalling_device),
            ("silent server", {"SDL_AUDIODRIVER": "pulseaudio", "PULSE_SERVER": "unix:silent"}, self.silent_server),
        ):
            with self.subTest(name), self.desktop(session=session) as desktop, device(desktop):
                player, took = Player(desktop, PROGRAM, SETTINGS + "Son=1\n"), []
                board = player.board()
                for _ in range(3):
                    board, seconds = self.play(player, board)
                    took.append(seconds)
                self.finish(player)
                print(f"{name}: seconds of the moves: {took}")

    def test_silent_services(self):
        manager = f"local/{os.uname().nodename}:{{}}/silent"
        for variable, address, greeting in (("DBUS_SESSION_BUS_ADDRESS", "unix:path={}/silent", b""),
                                            ("AT_SPI_BUS_ADDRESS", "unix:path={}/silent", b""),
                                            ("SESSION_MANAGER", manager, b""),
                                            ("SESSION_MANAGER", manager, b"\0\1" + bytes(6) + 20 * b"nonsense")):
            with self.subTest((variable, greeting)), self.desktop() as desktop, self.silent_server(desktop, greeting):
                desktop.environment[variable] = address.format(desktop.home)
                self.finish(Player(desktop, PROGRAM, SETTINGS + "Son=0\n"))

    def test_no_display(self):
        for broken in {"DISPLAY": ":none"}, {"QT_QPA_PLATFORM": "none"}:
            with self.subTest(broken), self.desktop(managed=False) as desktop:
                desktop.environment |= broken
                process = desktop.start(PROGRAM, errors=subprocess.PIPE)
                self.assertIn(b"no Qt platform plugin could be initialized", process.stderr.read())
                self.assertEqual(process.wait(PATIENCE), 1)

    def test_closed_streams(self):
        for stream in ("2>&-", "2> >(true)"):  # closed from the start, and a pipe whose reader leaves
            with self.subTest(stream=stream), self.desktop() as desktop:
                # Without the variable, the toolkit complains, as the disk driver does at its first sound.
                script = desktop.home / PROGRAM.name
                script.write_text(f"#!/bin/bash\nunset XDG_RUNTIME_DIR\nexec {PROGRAM} {stream}\n")
                script.chmod(0o755)
                player = Player(desktop, script, SETTINGS + "Son=1\n")
                self.finish(player)

    def test_sound_files(self):
        good = (pathlib.Path(__file__).resolve().parents[2] / "assets/sounds/son50.WAV").read_bytes()
        for name, make in {
            "empty": lambda file: file.touch(), "cut": lambda file: file.write_bytes(good[:999]),
            "huge": lambda file: file.touch() or os.truncate(file, 1 << 32), "FIFO": os.mkfifo,
            "link to itself": lambda file: file.symlink_to(file),
            "200 channels": lambda file: file.write_bytes(good[:22] + b"\xc8" + good[23:]),
            "rate 1": lambda file: file.write_bytes(good[:24] + b"\1\0\0\0" + good[28:]),
            "whole": lambda file: file.write_bytes(good),
        }.items():
            with self.subTest(name), self.player(SETTINGS + "Son=1\n") as player:
                for size in (2, 5, 10, 50, 80):
                    make(player.desktop.home / f"son{size}.WAV")
                self.finish(player)
                heard = player.desktop.loudspeaker.exists() and any(player.desktop.loudspeaker.read_bytes())
                self.assertEqual(heard, name in ("FIFO", "link to itself", "whole"), "heard")

    def test_stubborn_window_manager(self):
        with self.desktop(managed=False) as desktop:
            manager = desktop.start(pathlib.Path(__file__).with_name("stubborn_window_manager.py"),
                                    output=subprocess.PIPE)
            self.assertEqual(manager.stdout.readline(), b"ready\n")
            player = Player(desktop, PROGRAM, SETTINGS + "Son=0\n")
            player.drag(BACKGROUND, 1, (40, 30), follows=False)
            player.leave_about(player.open_about(), "key", "Escape")
            player.enter("12", "15")
            player.click(NEW_GAME)
            wait_for("a board as typed", lambda: player.board_size() == (12, 15))
            player.catch_up()
            self.assertEqual(player.geometry()[:2], (50, 40))
            self.finish(player)

    def test_screens(self):
        for side, cells in ((1, 1), (16000, 181)):  # the largest board, with some rows less than fit
            with self.subTest(side=side), self.desktop(side, side) as desktop:
                file = desktop.home / f"{PROGRAM.stem}.ini"
                file.write_text("[init]\nCol=1000\nLig=1000\nSon=0\n")
                process = desktop.start(PROGRAM)
                wait_for("the window", desktop.windows)
                desktop.xdotool("key", "F2", "Up", "space", "F1", "Escape", "F2")
                process.terminate()
                self.assertEqual(process.wait(PATIENCE), 0)
                self.assertIn(f"\nCol={cells}\nLig={cells}\n", file.read_text())


if __name__ == "__main__":
    main()
