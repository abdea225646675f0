#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Plays the real program on a real X display, with pointer and keyboard."""
import pathlib

import numpy as np

import model
from case import PROGRAM, Case, main
from desktop import PATIENCE, wait_for
from player import (BACK, COLOURS, MAIL, OPTIONS, QUIT_CAPTION, SITE, SOUND_SWITCH, Player, centre)

SOUNDS = pathlib.Path(__file__).resolve().parents[2] / "assets" / "sounds"
SOUND_UP_TO = {2: "son2.WAV", 10: "son5.WAV", 50: "son10.WAV", 80: "son50.WAV", 1200: "son80.WAV"}  # balls


def loudness(file, header=0):
    return abs(np.fromfile(file, "<i2", offset=header).astype(int)).sum()


class EndToEnd(Case):
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
        for balls_left, factor, best in ((1, 1, 0), (0, 2, 1000000)):
            settings = f"Col=8\nLig=14\nSon=0\n0={best}\n"
            with self.subTest(balls_left=balls_left), self.player(settings) as player:
                board, presses = player.deal_game(balls_left)
                score = 0
                for cell in presses[:-1]:
                    press = f"{cell} on\n{model.text(board)}"
                    score += model.points(len(model.group(board, cell)))
                    board = player.play(board, cell)
                    self.assertEqual(player.stored()["0"], str(max(score, best)), press)
                press = f"{presses[-1]} on\n{model.text(board)}"
                last = model.group(board, presses[-1])
                score = (score + model.points(len(last))) * factor
                player.act(centre(presses[-1]), "click", 1)
                wait_for(f"a panel over the board after {press}", lambda: "?" in "".join(player.board()))
                self.assertEqual(player.stored()["0"], str(max(score, best)), press)
                for about_seen in (False, True):
                    wait_for(f"the verdict, about_seen={about_seen} after {press}", lambda: (score >= best) == (
                        (player.look((17, 17), (17 + 180, 17 + 313)) == (192, 0, 0)).all(2).sum() > 100))
                    player.leave_about(player.open_about(), "key", "Escape")
                # Beside the labels of the panel; a ball that just comes by takes the click.
                wait_for("the panel gone after a click on it", lambda: player.act((100, 214), "click", 1)
                         or player.board() == model.without(board, last))

    def test_drags(self):
        with self.player("Col=25\nLig=20\nSon=0\n") as player:
            board, _ = player.play_largest(player.board())
            hole = next((x, 0) for x, column in enumerate(board) if column[0] == ".")
            follows = {"background": (200, 445), "hole": centre(hole)}
            follows |= {name: player.in_panel(place) for name, place in {
                "sc": (80, 157), "Label3": (100, 157), "l1(0)": (60, 175), "l1(3)": (60, 195), "Label2": (40, 100),
                "Label4": (104, 102)}.items()}
            stays = {"border": (100, 5), "corner": (3, 3), "ball": centre((0, 19))}
            stays |= {name: player.in_panel(place) for name, place in {
                "Frame2": (160, 40), "Shape1": (165, 135), "Label5": (100, 7), "Check1": (60, 80), "Text1": (118, 27),
                "Option1": (40, 8), "LabBtn": (89, 126)}.items()}
            player.catch_up()
            looks, start = player.look((0, 0), (738, 467)), player.geometry()
            for place in follows.values():
                for button in (1, 2, 3):
                    player.drag(place, button, (1, 0), (-250, 180), (40, -33), (430, 260), (0, 0))
            self.assertTrue((player.look((0, 0), (738, 467)) == looks).all(), "drags leave the game as it was")
            for number, (name, place) in enumerate(stays.items()):
                player.drag(place, 1 + number % 3, (-250, 180), follows=False)
                player.catch_up()
                self.assertEqual(player.geometry(), start, f"{name} drags")

    def test_about(self):
        with self.player("Col=25\nLig=20\nSon=0\n") as player:
            player.drag((200, 445), 1, (-300, 210))
            board, place = player.board(), player.geometry()
            for button, leave in ((1, (BACK, "click", 1)), (2, ("key", "Escape")), (3, ("key", "alt+F4"))):
                about = player.open_about(button)
                self.assertEqual(player.geometry(about), ((1600 - 413) // 2, (1200 - 344) // 2, 413, 344))
                player.leave_about(about, *leave)
                self.assertEqual(player.geometry(), place)
                player.expect_board(board, "the About window was left")
            about = player.open_about()
            for go, come in (("windowunmap", "windowmap"), ("windowminimize", "windowactivate")) * 2:
                player.desktop.xdotool(go, about)
                wait_for("no window", lambda: not player.visible())
                player.desktop.xdotool(come, about)
                player.expect_window("the About window", lambda window: window == about)
                player.desktop.looks(about)
            player.act(MAIL, "click", 3, "click", 1, window=about)
            wait_for("a mail", lambda: player.desktop.opened.exists() and player.desktop.opened.read_text())
            player.act(SITE, "click", 1, window=about)
            addresses = wait_for("the web site", lambda: "https" in (text := player.desktop.opened.read_text()) and text)
            self.assertEqual(addresses.split(), ["mailto:auteur@example.org?subject=Frelquat%20V1.0",
                                                 "https://www.example.org/"])
            player.process.terminate()
            self.assertEqual(player.process.wait(PATIENCE), 0)
            self.assertEqual(player.stored(), {"Col": "25", "Lig": "20", "Son": "0", "Niveau": "0"})


if __name__ == "__main__":
    main()
