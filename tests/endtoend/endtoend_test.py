#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Plays the real program on a real X display: with pointer and keys, with a screen reader, and on finer screens."""
import numpy as np
from PIL import Image

import model
from case import PROGRAM, SOUNDS, Case, main
from desktop import PATIENCE, wait_for
from player import BACK, BACKGROUND, COLOURS, MAIL, SIX_COLOURS, SITE, SOUND_SWITCH, Player, centre
from screen_reader import ScreenReader, names

SOUND_UP_TO = {2: "son2.WAV", 10: "son5.WAV", 50: "son10.WAV", 80: "son50.WAV", 1200: "son80.WAV"}  # balls
SMALL = "Col=8\nLig=14\nSon=0\n"
LARGE = "Col=25\nLig=20\nSon=0\n"
SIZE = (738, 467)  # of a window with a large board


def sound_of(group):
    return next(sound for most, sound in SOUND_UP_TO.items() if len(group) <= most)


def loudness(file, header=0):
    return abs(np.fromfile(file, "<i2", offset=header).astype(int)).sum()


def scaled_down(player):
    """The look of a large window at 100 %, without the balls."""
    look = np.array(Image.fromarray(player.look((0, 0), SIZE)).resize(SIZE, Image.Resampling.BOX)).astype(int)
    look[33:433, 33:533] = 0
    return look


class EndToEnd(Case):
    def test_starts_and_ends(self):
        """What the player chooses is stored when the window closes, and is there again at the next start."""
        with self.player() as player:
            area = player.desktop.screenshot().getbbox()
            self.assertEqual(area, (431, 250, 431 + 738, 250 + 567), "the window, without decorations")
            self.assertEqual(set("".join(player.board())), set("rb"))
            self.assertTrue(player.is_marked(SOUND_SWITCH))
            self.assertEqual(player.stored(), {"Niveau": "0"})
            player.enter("+40", "12.9x")
            player.click(SIX_COLOURS)
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

    def test_screen_reader(self):
        """Each cell says what it shows, each move is read out once, and every control can be found and used."""
        with self.desktop() as desktop:
            reader = ScreenReader(desktop)
            player = Player(desktop, PROGRAM, SMALL + "Niveau=4\n")
            table = reader.find("table")
            self.assertEqual([cell.name for cell in table], names(player.board()))
            reader.ask(reader.find("radio button", "2 couleurs"))
            reader.ask(reader.find("button", "Nouvelle"))
            reader.wait_to_hear("Il reste 112 balles sur 112.")
            board, presses = player.deal_game(balls_left=0)
            table[0].queryComponent().grabFocus()
            reader.wait_to_hear(names(board)[0])
            player.act("key", "Right")
            reader.wait_to_hear(names(board)[1])
            self.assertNotIn("now: Plateau", reader.heard, "a group was always left")
            score = 0
            for cell in presses:
                group, before = model.group(board, cell), names(board)
                reader.ask(table[cell[0] + 8 * cell[1]])
                board = model.without(board, group)
                score += model.points(len(group))
                changes = [f"now: {name}" for name in names(board) if name not in before]
                end = ""
                if model.balls_left(board) == 0:
                    score *= 2
                    changes += ["now: Plateau, aucun groupe", "Terminé, Meilleur score !!!"]
                    end = " Aucun groupe."
                move = (f"{len(group)} balles crevées ({model.points(len(group))} points.) Score {score}. "
                        f"Il reste {model.balls_left(board)} balles sur 112.{end}")
                reader.wait_to_hear(move)
                self.assertEqual([cell.name for cell in table], names(board))
                self.assertEqual(sorted(reader.listen()), sorted([move, *changes]))
            self.assertEqual(player.stored()["0"], str(score))
            wait_for("praise in red", lambda: (player.look((17, 17), (197, 330)) == (192, 0, 0)).all(2).sum() > 100)
            reader.ask(reader.find("button", "Aide"))
            back = reader.find("link", "Retour")
            self.assertEqual([reader.said_of(it) for it in reader.controls("link")], [
                "link: Coucou !!!, Envoyer un mail a l'auteur", "link: Site de l'auteur, Plein d'autres jeux",
                "link: Retour"])
            reader.ask(back)
            reader.ask(reader.find("notification", "Terminé"))
            reader.find("table")
            self.assertEqual([reader.said_of(it) for it in reader.controls()], [
                "frame: Zampotine", "table: Plateau, aucun groupe", "filler: ", "panel: Niveau",
                *(f"radio button: {colours} couleurs" for colours in range(2, 7)), "text: Colonnes", "text: Lignes",
                "check box: Activer le son", f"label: Score à battre: {score}",
                "button: Zéro, Remettre à zéro le meilleur score de ce niveau de difficulté., Ctrl+Del",
                f"label: {score} points", f"notification: {move}", "button: Nouvelle, Recommencer une partie, F2",
                "button: Aide, A Propos / Aide, F1", "button: Quitter, Quitter la partie, Ctrl+Q"])
            reader.ask(reader.find("button", "Zéro"))
            reader.ask(reader.find("button", "Quitter"))
            self.assertEqual(player.process.wait(PATIENCE), 0)
            self.assertEqual(player.stored()["0"], "0")

    def test_drags(self):
        """The background, empty cells and the texts drag the window with any button; nothing else does."""
        with self.player(LARGE) as player:
            board, _ = player.play_largest(player.board())
            start = player.geometry()
            hole = next((x, 0) for x, column in enumerate(board) if column[0] == ".")
            texts = (80, 157), (100, 157), (60, 175), (60, 195), (40, 100), (104, 102)
            others = (160, 40), (165, 135), (100, 7), (60, 80), (118, 27), (40, 8), (89, 126)
            lone_ball = min(model.groups(board)[0])
            for place in [(100, 5), (3, 3), centre(lone_ball), *map(player.in_panel, others)]:
                player.drag(place, 1, (-250, 180), follows=False)
            for number, place in enumerate([BACKGROUND, centre(hole), *map(player.in_panel, texts)]):
                player.drag(place, 1 + number % 3, (1, 0), (-250, 180), (430, 260), (0, 0))
            self.assertEqual(player.geometry(), start)

    def test_about(self):
        """The balls leave no traces at a scale that puts them between screen pixels, and bounce on after a pause."""
        with self.desktop(session={"QT_SCALE_FACTOR": "1.1"}) as desktop:
            desktop.run(PROGRAM.with_name("draw_balls"), desktop.home)
            player = Player(desktop, PROGRAM, LARGE, scale=1.1)
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
            player.act("key", "F1")
            player.leave_about(player.expect_about(), "key", "Return")
            self.assertEqual(player.geometry(), place)
            player.act("key", "ctrl+q")
            self.assertEqual(player.process.wait(PATIENCE), 0)

    def test_scales(self):
        """On a screen of another scale, and back, balls are as drawn, the border has no seams, all looks the same."""
        with self.desktop(3450, 1500) as desktop:
            desktop.run(PROGRAM.with_name("draw_balls"), desktop.home)
            for monitor in ("left 1200/300x1500/300+0+0 screen", "right 2250/300x1500/300+1200+0 none"):
                desktop.run("xrandr", "--setmonitor", *monitor.split())
            for other in (1.25, 1.5, 1.75, 2, 3):
                desktop.environment["QT_SCREEN_SCALE_FACTORS"] = f"1;{other}"
                player = Player(desktop, PROGRAM, LARGE + "Niveau=4\n")
                look = scaled_down(player)
                for place, player.scale in (((1200, 50), other), ((0, 50), 1)):
                    desktop.xdotool("windowmove", "--sync", player.window, *place)
                    wait_for(f"a window at {player.scale}", lambda: player.board_size() == (25, 20))
                    wait_for(f"balls as drawn at {player.scale}, with 1 and {other}", player.is_full)
                    wait_for(f"the same look at {player.scale}, with 1 and {other}",
                             lambda: abs(scaled_down(player) - look).mean() < 1.5)
                    picture, edge = player.look((0, 0), SIZE), round(17 * player.scale)
                    turned = picture.swapaxes(0, 1)
                    for side in (picture[:edge], picture[-edge:], turned[:edge], turned[-edge:]):
                        self.assertEqual(np.ptp(side[:, edge:-edge], 1).max(), 0, f"a seam at {player.scale}")
                player.process.kill()
                player.process.wait()


if __name__ == "__main__":
    main()
