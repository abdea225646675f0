#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Plays the real program where sound, services, screens and window managers do not behave."""
import concurrent.futures
import os
import pathlib
import socket
import subprocess

from case import PROGRAM, SOUNDS, Case, main
from desktop import PATIENCE, wait_for
from player import BACKGROUND, NEW_GAME, Player

SETTINGS = "Col=25\nLig=20\nNiveau=4\nSon=1\n"


def greet(server, greeting):
    """Answers the first connection. The system accepts all others, and they never get an answer."""
    connection, _ = server.accept()
    connection.send(greeting)
    return connection


class Surroundings(Case):
    def play_and_leave(self, player):
        board, first = player.play_largest(player.board())
        _, second = player.play_largest(board)
        player.process.terminate()
        self.assertEqual(player.process.wait(PATIENCE), 0)
        self.assertEqual(player.stored()["4"], str(first + second))

    def test_sounds(self):
        """There is no driver, or the device takes the beginning of a sound and no more."""
        with self.subTest("no driver"), self.player(SETTINGS, session={"SDL_AUDIODRIVER": "none"}) as player:
            self.play_and_leave(player)
        with self.subTest("stalling device"), self.desktop() as desktop:
            os.mkfifo(desktop.loudspeaker)
            with open(desktop.loudspeaker, "r+b", buffering=0):
                listener = desktop.start("head", "-c", "20000", desktop.loudspeaker, output=subprocess.DEVNULL)
                self.play_and_leave(Player(desktop, PROGRAM, SETTINGS))
                self.assertEqual(listener.wait(PATIENCE), 0, "it has heard something")

    def test_sound_files(self):
        """A file in the working folder is played instead of the game's own, but not a link to itself."""
        for target, is_heard in (("cut", False), ("loop", True)):
            with self.subTest(target), self.player(SETTINGS) as player:
                home = player.desktop.home
                (home / "cut").write_bytes((SOUNDS / "son50.WAV").read_bytes()[:999])
                (home / "loop").symlink_to("loop")
                for sound in SOUNDS.glob("*.WAV"):
                    (home / sound.name).symlink_to(target)
                player.desktop.loudspeaker.touch()
                self.play_and_leave(player)
                self.assertEqual(any(player.desktop.loudspeaker.read_bytes()), is_heard)

    def test_silent_services(self):
        """The buses, the sound server and the session manager never answer, or the latter answers nonsense."""
        bus, manager = "unix:path={}", f"local/{os.uname().nodename}:{{}}"
        for greeting, services in (
            (b"", {"DBUS_SESSION_BUS_ADDRESS": bus, "AT_SPI_BUS_ADDRESS": bus, "SESSION_MANAGER": manager,
                   "SDL_AUDIODRIVER": "pulseaudio", "PULSE_SERVER": "unix:{}"}),
            (b"\0\1" + bytes(6) + 20 * b"nonsense", {"SESSION_MANAGER": manager}),
        ):
            with self.subTest(greeting), self.desktop() as desktop, socket.socket(socket.AF_UNIX) as server, \
                    concurrent.futures.ThreadPoolExecutor() as pool:
                server.bind(str(desktop.home / "socket"))
                server.listen()
                server.settimeout(PATIENCE)
                first = pool.submit(greet, server, greeting)
                desktop.environment |= {name: place.format(desktop.home / "socket") for name, place in services.items()}
                self.play_and_leave(Player(desktop, PROGRAM, SETTINGS))
                first.result().close()

    def test_no_display(self):
        with self.desktop(managed=False) as desktop:
            for broken in {"DISPLAY": ":none"}, {"QT_QPA_PLATFORM": "none"}:
                desktop.environment |= broken
                process = desktop.start(PROGRAM, errors=subprocess.PIPE)
                self.assertIn(b"no Qt platform plugin could be initialized", process.stderr.read(), broken)
                self.assertEqual(process.wait(PATIENCE), 1)

    def test_closed_streams(self):
        with self.desktop() as desktop:
            for stream in ("2>&-", "2> >(true)"):  # closed from the start, and a pipe whose reader leaves
                with self.subTest(stream):
                    # Without the variable, Qt writes a warning, as SDL's disk driver does at its first sound.
                    script = desktop.home / PROGRAM.name
                    script.write_text(f"#!/bin/bash\nunset XDG_RUNTIME_DIR\nexec {PROGRAM} {stream}\n")
                    script.chmod(0o755)
                    self.play_and_leave(Player(desktop, script, SETTINGS))

    def test_stubborn_window_manager(self):
        with self.desktop(managed=False) as desktop:
            manager = desktop.start(pathlib.Path(__file__).with_name("stubborn_window_manager.py"),
                                    output=subprocess.PIPE)
            self.assertEqual(manager.stdout.readline(), b"ready\n")
            player = Player(desktop, PROGRAM, SETTINGS)
            player.drag(BACKGROUND, 1, (40, 30), follows=False)
            player.leave_about(player.open_about(), "key", "Escape")
            player.enter("12", "15")
            player.click(NEW_GAME)
            wait_for("a smaller window in its place", lambda: player.geometry() == (50, 40, 478, 367))
            self.play_and_leave(player)

    def test_screens(self):
        for side, cells in ((1, 1), (16000, 181)):  # the largest board has 181 x 181 cells
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
