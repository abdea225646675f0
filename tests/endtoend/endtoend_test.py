#!/usr/bin/python3 -B
"""Plays the real program on a real X display, with pointer and keyboard.

Usage: endtoend_test.py PROGRAM FOLDER [TEST...], where FOLDER takes the screenshots of failures.
"""
import contextlib
import pathlib
import signal
import sys
import unittest

import numpy as np

import model
from desktop import PATIENCE, Desktop, wait_for
from player import COLOURS, NEW_GAME, OPTIONS, QUIT_CAPTION, QUIT_PICTURE, SOUND_SWITCH, Player, centre

PROGRAM, FOLDER = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
SOUNDS = pathlib.Path(__file__).resolve().parents[2] / "assets" / "sounds"
SOUND_UP_TO = {2: "son2.WAV", 10: "son5.WAV", 50: "son10.WAV", 80: "son50.WAV", 1200: "son80.WAV"}  # balls


def loudness(file, header=0):
    return abs(np.fromfile(file, "<i2", offset=header).astype(int)).sum()


class EndToEnd(unittest.TestCase):
    @contextlib.contextmanager
    def player(self, settings=None, width=1600, height=1200):
        with contextlib.ExitStack() as stack:
            desktop = Desktop(stack, FOLDER, width, height)
            try:
                yield Player(desktop, PROGRAM, settings)
            except Exception:
                desktop.screenshot().save(FOLDER / f"{self.id()}.png")
                raise

    def test_starts_and_ends(self):
        with self.player() as player:
            self.assertEqual(player.geometry(), (431, 250, 738, 567))
            self.assertEqual(player.desktop.screenshot().getbbox(), (431, 250, 431 + 738, 250 + 567), "decorations")
            self.assertEqual(set("".join(player.board())), set("rb"))
            self.assertEqual(player.stored(), {"Niveau": "0"})
            for end, columns, rows, level, size in (
                (lambda: player.act("key", "alt+F4"), "40", "12", 4, (40, 14)),  # the window manager's key
                (lambda: player.click(QUIT_CAPTION), "+30", "16.9x", 3, (30, 16)),
                (lambda: player.process.terminate(), "abc", "30", 1, (8, 30)),
            ):
                sound = not player.is_marked(SOUND_SWITCH)
                player.enter(columns, rows)
                player.click(OPTIONS[level])
                player.click(SOUND_SWITCH)
                wait_for("the sound switch's turn", lambda: player.is_marked(SOUND_SWITCH) == sound)
                end()
                self.assertEqual(player.process.wait(PATIENCE), 0)
                stored = {"Niveau": str(level), "Col": columns, "Lig": rows, "Son": str(int(sound))}
                self.assertEqual(player.stored(), stored)
                player = Player(player.desktop, PROGRAM)
                self.assertEqual(player.board_size(), size)
                self.assertEqual(set("".join(player.board())), set(COLOURS[:level + 2]))
                self.assertEqual(player.is_marked(SOUND_SWITCH), sound)

    def test_presses(self):
        with self.player("Col=40\nLig=30\n") as player:
            board = player.board()
            lone = min(model.groups(board)[0])
            player.act(centre(lone), "click", 1, "click", 2, "click", 3)
            player.catch_up()
            player.expect_board(board, f"presses on the lone ball {lone}")
            self.assertNotIn("0", player.stored())
            missing = set(SOUND_UP_TO.values())
            while missing:
                sounds = {min(balls): next(sound for most, sound in SOUND_UP_TO.items() if len(balls) <= most)
                          for balls in model.groups(board) if len(balls) > 1}
                if not sounds:
                    board = player.deal()
                    continue
                # A group that plays no missing sound is only removed to gather bigger ones.
                cell = next((cell for cell in sounds if sounds[cell] in missing), next(iter(sounds)))
                player.desktop.loudspeaker.write_bytes(b"")
                press = f"{cell} on\n{model.text(board)}"
                board = player.play(board, cell, button=1 + len(missing) % 3)
                expected = 2 * loudness(SOUNDS / sounds[cell], header=44)  # on both channels
                wait_for(f"{sounds[cell]} and no other sound for {press}",
                         lambda: 0.99 < loudness(player.desktop.loudspeaker) / expected < 1.01)
                missing.discard(sounds[cell])

    def test_whole_games(self):
        for balls_left, factor in ((1, 1), (0, 2)):
            with self.subTest(balls_left=balls_left), self.player("Col=8\nLig=14\nSon=0\n") as player:
                board = player.board()
                while not (presses := model.game_ending_with(balls_left, board)):
                    board = player.deal()
                score = 0
                for cell in presses[:-1]:
                    press = f"{cell} on\n{model.text(board)}"
                    score += model.points(len(model.group(board, cell)))
                    board = player.play(board, cell)
                    self.assertEqual(player.stored()["0"], str(score), press)
                press = f"{presses[-1]} on\n{model.text(board)}"
                last = model.group(board, presses[-1])
                score = (score + model.points(len(last))) * factor
                player.act(centre(presses[-1]), "click", 1)
                wait_for(f"a panel over the board after {press}", lambda: "?" in "".join(player.board()))
                self.assertEqual(player.stored()["0"], str(score), press)
                player.act((100, 214), "click", 1)  # on the panel, beside its labels and balls
                player.expect_board(model.without(board, last), "a click on the end-of-game panel")

    def test_during_a_move(self):
        with self.player("Col=40\nLig=30\n") as player:
            board = player.board()
            first = model.groups(board)[-1]
            after = model.without(board, first)
            *_, dropped, last = model.groups(after)
            cause = f"{min(dropped)} at once after {min(first)} on\n{model.text(board)}"
            player.act_at_once(centre(min(first)), "click", 1, centre(min(dropped)), "click", 1)
            player.expect_board(after, cause)
            player.catch_up()
            player.expect_board(after, cause)
            player.act_at_once(centre(min(last)), "click", 1, player.in_panel(QUIT_PICTURE), "click", 1)
            self.assertEqual(player.process.wait(PATIENCE), 0)
            score = model.points(len(first)) + model.points(len(last))
            stored = {"Niveau": "0", "0": str(score), "Col": "40", "Lig": "30", "Son": "1"}
            self.assertEqual(player.stored(), stored, f"{min(last)} on\n{model.text(after)}")

    def test_screens(self):
        for width, height, asked, columns, rows in (
            (1024, 768, "60", 40, 36),
            (1600, 1200, "5000", 69, 58),
            (5120, 2880, "1000", 230, 142),  # no more cells than can be numbered
        ):
            with self.subTest(width=width), self.player(width=width, height=height) as player:
                player.enter(asked, asked)
                player.click(NEW_GAME)
                wait_for(f"{columns} columns, {rows} rows", lambda: player.board_size() == (columns, rows))
                player.catch_up()
                # The window may overhang the screen by some rows.
                self.assertGreater(sum(ball in COLOURS for ball in "".join(player.board())), 0.9 * columns * rows)


if __name__ == "__main__":
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
