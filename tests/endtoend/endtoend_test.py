#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Plays the real program on a real X display: with the pointer, with keys, with a screen reader, on finer screens."""
import pathlib

import numpy as np
from PIL import Image

import model
from case import PROGRAM, Case, main
from desktop import PATIENCE, wait_for
from player import BACK, BACKGROUND, COLOURS, MAIL, OPTIONS, SITE, SOUND_SWITCH, KeyboardPlayer, Player, centre
from screen_reader import ScreenReader, names, role_of

SOUNDS = pathlib.Path(__file__).resolve().parents[2] / "assets" / "sounds"
SOUND_UP_TO = {2: "son2.WAV", 10: "son5.WAV", 50: "son10.WAV", 80: "son50.WAV", 1200: "son80.WAV"}  # balls
SMALL = "Col=8\nLig=14\nSon=0\n"
LARGE = "Col=25\nLig=20\nSon=0\n"
SIZE = (738, 467)  # of a window with a large board


def sound_of(group):
    return next(sound for most, sound in SOUND_UP_TO.items() if len(group) <= most)


def loudness(file, header=0):
    return abs(np.fromfile(file, "<i2", offset=header).astype(int)).sum()


class EndToEnd(Case):
    def test_starts_and_ends(self):
        """What the player chooses is stored when the window closes, and is there again at the next start."""
        with self.player() as player:
            self.assertEqual(player.geometry(), (431, 250, 738, 567))
            self.assertEqual(player.desktop.screenshot().getbbox(), (431, 250, 431 + 738, 250 + 567), "decorations")
            self.assertEqual(set("".join(player.board())), set("rb"))
            self.assertTrue(player.is_marked(SOUND_SWITCH))
            self.assertEqual(player.stored(), {"Niveau": "0"})
            player.enter("+40", "12.9x")
            player.click(OPTIONS[4])
            player.click(SOUND_SWITCH)
            player.act("key", "alt+F4")  # the window manager's key
            self.assertEqual(player.process.wait(PATIENCE), 0)
            self.assertEqual(player.stored(), {"Niveau": "4", "Col": "+40", "Lig": "12.9x", "Son": "0"})
            player = Player(player.desktop, PROGRAM)
            self.assertEqual(player.board_size(), (40, 14))
            self.assertEqual(set("".join(player.board())), set(COLOURS))
            self.assertFalse(player.is_marked(SOUND_SWITCH))

    def test_presses(self):
        """A press with any button removes the group, which plays its sound and no other."""
        with self.player("Col=40\nLig=30\n") as player:
            board = player.board()
            heard = set()
            while len(heard) < len(SOUND_UP_TO):
                groups = [group for group in model.groups(board) if len(group) > 1]
                if not groups:
                    board = player.deal()
                    continue
                # The smallest group with a new sound. Without one, the smallest of all, so that larger ones gather.
                group = min(groups, key=lambda group: sound_of(group) in heard)
                player.desktop.loudspeaker.write_bytes(b"")
                board = player.play(board, min(group), button=1 + len(heard) % 3)
                expected = 2 * loudness(SOUNDS / sound_of(group), header=44)  # on both channels
                wait_for(f"{sound_of(group)} and no other sound for {len(group)} balls",
                         lambda: 0.99 < loudness(player.desktop.loudspeaker) / expected < 1.01)
                heard.add(sound_of(group))

    def test_keyboard(self):
        """A player without a pointer clears a board, which doubles the score."""
        with self.desktop() as desktop:
            player = KeyboardPlayer(desktop, PROGRAM, SMALL)
            board, score = player.play_game(balls_left=0)
            self.assertEqual(player.stored()["0"], str(2 * score))
            player.act("key", "F1")
            player.leave_about(player.expect_about(), "key", "Return")
            self.assertTrue(player.shows_panel())
            player.act("key", "Escape", "key", "Tab")  # beyond the board, where its cursor does not show
            player.expect_board(board, "the panel was left")
            player.act("key", "ctrl+Delete", "key", "ctrl+q")
            self.assertEqual(player.process.wait(PATIENCE), 0)
            self.assertEqual(player.stored()["0"], "0")

    def test_screen_reader(self):
        """Each cell says what it shows, each move is read out once, and every control can be found and used."""
        with self.desktop() as desktop:
            reader = ScreenReader(desktop, PROGRAM, SMALL + "Niveau=4\n")
            self.assertEqual(reader.cells(), names(reader.board()))
            reader.ask(reader.find("radio button", "2 couleurs"))
            board, presses = reader.deal_game(balls_left=1)
            reader.wait_to_hear("Il reste 112 balles sur 112.")
            reader.find("table")[0].queryComponent().grabFocus()
            reader.wait_to_hear(names(board)[0])
            reader.act("key", "Right")
            reader.wait_to_hear(names(board)[1])
            reader.act("key", "Tab")  # beyond the board, where its cursor does not show
            score = 0
            for cell in presses:
                balls, before = len(model.group(board, cell)), names(board)
                board = reader.play(board, cell)
                score += model.points(balls)
                move = (f"{balls} balles crevées ({model.points(balls)} points.) Score {score}. "
                        f"Il reste {model.balls_left(board)} balles sur 112.")
                changes = [f"now: {name}" for name in names(board) if name not in before]
                if cell == presses[-1]:
                    move += " Aucun groupe."
                    changes += ["now: Plateau, aucun groupe", "Terminé, Meilleur score !!!"]
                reader.wait_to_hear(move)
                self.assertEqual(reader.cells(), names(board))
                self.assertEqual(sorted(reader.listen()), sorted([move, *changes]))
            self.assertEqual(reader.stored()["0"], str(score))
            reader.ask(reader.find("notification", "Terminé"))
            reader.act("key", "Tab")
            reader.expect_board(board, "the panel was left")
            self.assertEqual([reader.said_of(control) for control in reader.controls()], [
                "frame: Zampotine", "table: Plateau, aucun groupe", "filler: ", "panel: Niveau",
                *(f"radio button: {colours} couleurs" for colours in range(2, 7)),
                "text: Colonnes, 8", "text: Lignes, 14", "check box: Activer le son", f"label: Score à battre: {score}",
                "button: Zéro, Remettre à zéro le meilleur score de ce niveau de difficulté., Ctrl+Del",
                f"label: {score} points", f"notification: {move}", "button: Nouvelle, Recommencer une partie, F2",
                "button: Aide, A Propos / Aide, F1", "button: Quitter, Quitter la partie, Ctrl+Q"])
            reader.ask(reader.find("button", "Aide"))
            back = reader.find("link", "Retour")
            self.assertEqual([reader.said_of(control) for control in reader.controls() if role_of(control) == "link"], [
                "link: Coucou !!!, Envoyer un mail a l'auteur, ", "link: Site de l'auteur, Plein d'autres jeux, ",
                "link: Retour, , "])
            reader.ask(back)
            reader.ask(reader.find("button", "Zéro"))
            reader.ask(reader.find("button", "Quitter"))
            self.assertEqual(reader.process.wait(PATIENCE), 0)
            self.assertEqual(reader.stored()["0"], "0")

    def test_drags(self):
        """The background, empty cells and the texts drag the window with any button; nothing else does."""
        with self.player(LARGE) as player:
            board, _ = player.play_largest(player.board())
            start = player.geometry()
            hole = next((x, 0) for x, column in enumerate(board) if column[0] == ".")
            texts = (80, 157), (100, 157), (60, 175), (60, 195), (40, 100), (104, 102)
            others = (160, 40), (165, 135), (100, 7), (60, 80), (118, 27), (40, 8), (89, 126)
            for place in [(100, 5), (3, 3), centre((0, 19)), *map(player.in_panel, others)]:
                player.drag(place, 1, (-250, 180), follows=False)
            for number, place in enumerate([BACKGROUND, centre(hole), *map(player.in_panel, texts)]):
                player.drag(place, 1 + number % 3, (1, 0), (-250, 180), (430, 260), (0, 0))
            self.assertEqual(player.geometry(), start)

    def test_about(self):
        """The balls leave no traces at a scale that puts them between screen pixels, and bounce on after a pause."""
        with self.desktop(session={"QT_SCALE_FACTOR": "1.25"}) as desktop:
            desktop.run(PROGRAM.with_name("draw_balls"), desktop.home)
            player = Player(desktop, PROGRAM, LARGE, scale=1.25)
            desktop.xdotool("windowmove", "--sync", player.window, 30, 500)
            place = player.geometry()
            about = player.open_about(button=3)
            picture = desktop.still(about)
            for go, come in (("windowunmap", "windowmap"), ("windowminimize", "windowactivate")):
                desktop.xdotool(go, about)
                wait_for("no window", lambda: not player.visible())
                desktop.xdotool(come, about)
                player.expect_about()
                self.assertTrue((desktop.still(about) == picture).all())
            player.act(MAIL, "click", 3, "click", 1, SITE, "click", 1, window=about)
            wait_for("the web site", lambda: desktop.opened.exists() and "https" in desktop.opened.read_text())
            self.assertEqual(desktop.opened.read_text().split(),
                             ["mailto:auteur@example.org?subject=Frelquat%20V1.0", "https://www.example.org/"])
            player.leave_about(about, BACK, "click", 1)
            player.leave_about(player.open_about(button=2), "key", "alt+F4")
            self.assertEqual(player.geometry(), place)

    def test_scales(self):
        """At each scale, the balls are as drawn, the border has no seams, and the window looks as at 100 %."""
        looks = []
        with self.desktop(2400, 2000) as desktop:
            desktop.run(PROGRAM.with_name("draw_balls"), desktop.home)
            for scale in (1, 1.25, 1.5, 1.75, 2, 3):
                desktop.environment["QT_SCALE_FACTOR"] = str(scale)
                player = Player(desktop, PROGRAM, LARGE + "Niveau=4\n", scale)
                shown = player.look((0, 0), [round(length * scale) for length in SIZE])
                player.process.kill()
                player.process.wait()
                looks.append(np.array(Image.fromarray(shown).resize(SIZE, Image.Resampling.BOX)).astype(int))
                looks[-1][33:433, 33:533] = 0
                self.assertLess(abs(looks[-1] - looks[0]).mean(), 1.5, f"scaled down from {scale}")
                edge = round(17 * scale)
                for picture in (shown, shown.swapaxes(0, 1)):
                    for strip in (picture[:edge, edge:-edge], picture[-edge:, edge:-edge]):
                        self.assertEqual(np.ptp(strip, 1).max(), 0, f"a seam in the border at {scale}")

    def test_screens_of_two_scales(self):
        with self.desktop(3200, 1200, session={"QT_SCREEN_SCALE_FACTORS": "1;2"}) as desktop:
            desktop.run(PROGRAM.with_name("draw_balls"), desktop.home)
            for monitor in ("left 1200/300x1200/300+0+0 screen", "right 2000/300x1200/300+1200+0 none"):
                desktop.run("xrandr", "--setmonitor", *monitor.split())
            player = Player(desktop, PROGRAM, LARGE + "Niveau=4\n")
            for place, player.scale in (((1300, 100), 2), ((200, 150), 1)):
                desktop.xdotool("windowmove", "--sync", player.window, *place)
                wait_for(f"balls as drawn at {player.scale}", lambda: set("".join(player.board())) == set(COLOURS))


if __name__ == "__main__":
    main()
