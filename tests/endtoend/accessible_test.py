#!/usr/bin/python3 -B
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Plays the real program without a pointer: by keyboard alone, and as a screen reader does; and on finer screens."""
import contextlib
import time

import numpy as np
from PIL import Image

import model
from case import PROGRAM, Case, main
from desktop import PATIENCE, wait_for
from player import COLOURS, Player, pixels_of
from screen_reader import ScreenReader, role_of

SMALL = "Col=8\nLig=14\nSon=0\n"
SIZE = (738, 467)  # of a window with 25 columns and 20 rows


class Accessible(Case):
    @contextlib.contextmanager
    def reader(self):
        with self.desktop() as desktop:
            reader = ScreenReader(desktop)
            yield reader, Player(desktop, PROGRAM, SMALL)

    def test_keyboard(self):
        with self.player(SMALL) as player:
            board = player.board()
            while not (presses := model.game_ending_with(1, board)):
                player.act("key", "F2")
                board = wait_for("a new board", lambda: (now := player.board()) != board and "?" not in "".join(now) and now)
            player.act("key", "Up")  # shows the cursor at the left of the lowest row
            at, score = (0, 13), 0
            for cell in presses:
                across, down = cell[0] - at[0], cell[1] - at[1]
                keys = ["Right" if across > 0 else "Left"] * abs(across) + ["Down" if down > 0 else "Up"] * abs(down)
                line = player.balls_left_line()
                player.act("key", *keys, "space")
                wait_for(f"{cell} pressed on\n{model.text(board)}", lambda: player.balls_left_line() != line)
                score += model.points(len(model.group(board, cell)))
                board, at = model.without(board, model.group(board, cell)), cell
            wait_for("the end of the game", lambda: player.stored()["0"] == str(score))
            wait_for("its panel", lambda: "?" in "".join(player.board()))
            player.act("key", "Escape", "key", "Tab")  # beyond the board, where the cursor does not show
            player.expect_board(board, "the panel was left")
            player.act("key", "F1")
            player.leave_about(player.expect_window("About", lambda window: window not in (None, player.window)),
                               "key", "Return")
            player.act("key", "ctrl+Delete", "key", "ctrl+q")
            self.assertEqual(player.process.wait(PATIENCE), 0)
            self.assertEqual(player.stored()["0"], "0")

    def test_screen_reader(self):
        with self.reader() as (reader, player):
            while not (presses := model.game_ending_with(1, board := reader.board())):
                reader.press(reader.find("button", "Nouvelle"))
                reader.wait_to_hear("Il reste 112 balles sur 112.")
            reader.find("table")[0].queryComponent().grabFocus()
            wait_for("the focus", lambda: reader.listen() or any("ligne 1, colonne 1," in it for it in reader.heard))
            player.act("key", "Right")
            wait_for("its move", lambda: reader.listen() or any("ligne 1, colonne 2," in it for it in reader.heard))
            score, left, cells = 0, 112, reader.cells()
            for cell in presses:
                table = reader.find("table")
                for idle in [place for place, (_, size) in cells.items() if size < 2][:2]:
                    reader.press(table.queryTable().getAccessibleAt(idle[1], idle[0]))
                group = model.group(board, cell)
                score, left = score + model.points(len(group)), left - len(group)
                board, before = model.without(board, group), cells
                reader.press(table.queryTable().getAccessibleAt(cell[1], cell[0]))
                sizes = {ball: len(balls) for balls in model.groups(board) for ball in balls}
                ended = max(sizes.values()) == 1
                move = (f"{len(group)} balles crevées ({model.points(len(group))} points.) Score {score}. "
                        f"Il reste {left} balles sur 112." + " Aucun groupe." * ended)
                reader.wait_to_hear(move, *["now: Plateau, aucun groupe", "Terminé, Meilleur score !!!"] * ended)
                cells = reader.cells()
                reader.listen()
                self.assertEqual([it for it in reader.heard if "balles" in it and "now:" not in it], [move])
                told = set(reader.heard)
                for (x, y), said in cells.items():
                    self.assertEqual(said, (board[x][y], sizes.get((x, y), 0)), f"{x, y} of\n{model.text(board)}")
                    if said != before[x, y]:
                        self.assertIn(f"now: {table.queryTable().getAccessibleAt(y, x).name}", told)
            self.assertEqual(player.stored()["0"], str(score))
            reader.press(reader.find("notification", "Terminé"))
            wait_for("the panel gone", lambda: reader.listen() or not any("Terminé" in it.name for it in reader.all()))
            self.assertEqual(reader.board(), board)
            self.assertEqual([(role_of(it), it.name) for it in reader.all()], [
                ("frame", "Zampotine"), ("table", "Plateau, aucun groupe"), ("filler", ""), ("panel", "Niveau"),
                *[("radio button", f"{colours} couleurs") for colours in range(2, 7)], ("text", "Colonnes"),
                ("text", "Lignes"), ("check box", "Activer le son"), ("label", f"Score à battre: {score}"),
                ("button", "Zéro"), ("label", f"{score} points"), ("notification", move), ("button", "Nouvelle"),
                ("button", "Aide"), ("button", "Quitter")])
            self.assertEqual(self.said_of(reader, "button"), {
                "Nouvelle": ("Recommencer une partie", "F2"), "Quitter": ("Quitter la partie", "Ctrl+Q"),
                "Zéro": ("Remettre à zéro le meilleur score de ce niveau de difficulté.", "Ctrl+Del"),
                "Aide": ("A Propos / Aide", "F1")})
            self.assertTrue(reader.find("text", "Colonnes").queryText().getText(0, -1) == "8" and
                            reader.find("text", "Lignes").queryText().getText(0, -1) == "14")
            reader.press(reader.find("button", "Aide"))
            reader.find("link")
            self.assertEqual(self.said_of(reader, "link"), {
                "Coucou !!!": ("Envoyer un mail a l'auteur", ""), "Site de l'auteur": ("Plein d'autres jeux", ""),
                "Retour": ("", "")})
            reader.press(reader.find("link", "Retour"))
            reader.press(reader.find("button", "Zéro"))
            reader.press(reader.find("button", "Quitter"))
            self.assertEqual(player.process.wait(PATIENCE), 0)
            self.assertEqual(player.stored()["0"], "0")

    def said_of(self, reader, role):
        controls = [it for it in reader.all() if role_of(it) == role]
        return {it.name: (it.description, it.queryAction().getKeyBinding(0)) for it in controls}

    def test_scales(self):
        looks = {}
        for scale in (1, 1.25, 1.5, 1.75, 2, 3):
            session = {"QT_SCALE_FACTOR": str(scale)}
            with self.subTest(scale=scale), self.desktop(2400, 1600, session=session) as desktop:
                window = self.show_all_colours(desktop)
                desktop.xdotool("windowmove", "--sync", window, 0, 0)
                picture = wait_for("balls as drawn", lambda: self.sharp_window(desktop, (0, 0), scale))
                shown = np.array(picture)
                scaled = np.array(picture.resize(SIZE, Image.Resampling.BOX)).astype(int)
                scaled[33:433, 33:533] = 0
                difference = abs(scaled - looks.setdefault("at 100 %", scaled))
                self.assertLess(difference.mean(), 1.5, "scaled down, it looks as at 100 %")
                edge = round(17 * scale)
                for strip in (shown[:edge], shown[-edge:], shown.swapaxes(0, 1)[:edge], shown.swapaxes(0, 1)[-edge:]):
                    self.assertEqual(np.ptp(strip[:, edge:-edge], 1).max(), 0, "a seam between pieces of the border")

    def test_screens_of_two_scales(self):
        session = {"QT_SCREEN_SCALE_FACTORS": "1;2"}
        with self.desktop(3200, 1200, session=session) as desktop:
            for monitor in ("left 1200/300x1200/300+0+0 screen", "right 2000/300x1200/300+1200+0 none"):
                desktop.run("xrandr", "--setmonitor", *monitor.split())
            window = self.show_all_colours(desktop)
            for place, scale in (((100, 100), 1), ((1300, 100), 2), ((200, 150), 1)):
                desktop.xdotool("windowmove", "--sync", window, *place)
                wait_for(f"balls as drawn at {scale}", lambda: self.sharp_window(desktop, place, scale))

    def test_bouncing_balls(self):
        """At a scale that puts the balls between the pixels of the screen."""
        with self.desktop(session={"QT_SCALE_FACTOR": "1.1"}) as desktop:
            window = self.show_all_colours(desktop)
            desktop.xdotool("key", "--window", window, "F1")
            about = wait_for("the About window", lambda: window not in (now := desktop.windows()) and now)[0]
            before = desktop.still(about)
            time.sleep(4)
            self.assertTrue((desktop.still(about) == before).all(), "the balls have left traces")

    def show_all_colours(self, desktop):
        (desktop.home / f"{PROGRAM.stem}.ini").write_text("[init]\nNiveau=4\nCol=25\nLig=20\n")
        desktop.run(PROGRAM.with_name("draw_balls"), desktop.home)
        desktop.start(PROGRAM)
        desktop.wait_for_focus()
        return wait_for("the window", desktop.windows)[0]

    def sharp_window(self, desktop, place, scale):
        """A picture of the window, if every cell shows one of the balls as they are drawn at this scale."""
        area = [place[0], place[1], *(start + round(length * scale) for start, length in zip(place, SIZE))]
        picture = desktop.screenshot(area).convert("RGB")
        shown = np.array(picture)
        first, side = int(33 * scale + 0.5), round(20 * scale)
        cells = shown[first:first + 20 * side, first:first + 25 * side].reshape(20, side, 25, side, 3).swapaxes(1, 2)
        balls = [pixels_of(ball, desktop.home / str(scale), side) for ball in COLOURS]
        off = [abs(cells.astype(int) - ball).max((2, 3, 4)) for ball in balls]
        return picture if np.min(off, 0).max() <= 2 else None


if __name__ == "__main__":
    main()
