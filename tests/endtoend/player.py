# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""A player at the running program: sees its window as pixels and works it with pointer and keys."""
import functools
import pathlib
import re

import numpy as np
from PIL import Image

import model
from desktop import wait_for

PICTURES = pathlib.Path(__file__).resolve().parents[2] / "assets" / "pictures"
COLOURS = "rbvjpg"  # in the order in which the levels add them
FIELD = (128, 160, 192)
CELL = 20  # pixels
BACKGROUND = (200, 445)  # of a window with 25 columns and 20 rows
BOARD = 33  # pixels from the window's left and top to the first cell, and from its top to the side panel
# Places in the side panel.
SIX_COLOURS, SOUND_SWITCH = (12, 64), (12, 80)
COLUMNS_BOX, ROWS_BOX = (118, 27), (157, 27)
NEW_GAME, HELP_ICON = (37, 234), (89, 227)
# Places in the About window.
MAIL, SITE, BACK = (77, 315), (208, 314), (340, 313)


@functools.cache
def pixels_of(content, folder, side):
    """The pixels of a cell, with its ball from the picture in this folder."""
    cell = Image.new("RGBA", (side, side), FIELD)
    if content != ".":
        with Image.open(next(folder.glob(f"i{content}.[gp]*"))) as ball:
            cell.alpha_composite(ball.convert("RGBA"))
    return np.array(cell.convert("RGB")).astype(np.int16)


def centre(cell):
    return tuple(BOARD + CELL * place + CELL // 2 for place in cell)


class Player:
    AFTER_POINTING = BEFORE_DRAGGING = ()  # words of xdotool

    def __init__(self, desktop, program, settings=None, scale=1):
        """Starts the program, with these lines in its settings file if any are given."""
        self.desktop = desktop
        self.scale = scale
        self.file = desktop.home / (program.stem + ".ini")
        if settings is not None:
            self.file.write_text("[init]\n" + settings)
        self.process = desktop.start(program)
        self.window = wait_for("the window", self.visible)
        if desktop.managed:
            self.expect_window("the main window", bool)
        wait_for("a dealt board", self.is_full)

    def stored(self):
        return dict(re.findall("(.+)=(.*)", self.file.read_text()))

    def visible(self):
        """The program's only window that shows, or None."""
        windows = self.desktop.windows()
        return windows[0] if len(windows) == 1 else None

    def geometry(self, window=None):
        return self.desktop.geometry(window or self.window)

    def look(self, start, end, window=None):
        """The pixels by row and column between two places in the window."""
        left, top, _, _ = self.geometry(window)
        x1, y1, x2, y2 = (round(self.scale * length) for length in start + end)
        return np.array(self.desktop.screenshot((left + x1, top + y1, left + x2, top + y2)).convert("RGB"))

    def board_size(self):
        _, _, width, height = self.geometry()
        return round((width / self.scale - 238) / CELL), round((height / self.scale - 67) / CELL)

    def board(self):
        """The board, with "?" where a cell shows neither a ball nor the field."""
        columns, rows = self.board_size()
        side = round(CELL * self.scale)
        pixels = self.look((BOARD, BOARD), (BOARD + CELL * columns, BOARD + CELL * rows))
        cells = pixels.reshape(rows, side, columns, side, 3).transpose(2, 0, 1, 3, 4)
        folder, tolerance = (PICTURES, 0) if self.scale == 1 else (self.desktop.home / str(self.scale), 2)
        shown = np.full((columns, rows), "?")
        for content in "." + COLOURS:
            shown[(abs(cells - pixels_of(content, folder, side)) <= tolerance).all((2, 3, 4))] = content
        return tuple(map("".join, shown))

    def is_full(self):
        return set("".join(self.board())) <= set(COLOURS)

    def expect_board(self, expected, cause):
        wait_for(f"the board\n{model.text(expected)}\nafter {cause}", lambda: self.board() == expected)

    def in_panel(self, place):
        return place[0] + CELL * self.board_size()[0] + 40, place[1] + BOARD

    def balls_left_line(self):
        return self.look(self.in_panel((5, 187)), self.in_panel((175, 204))).tobytes()

    def is_marked(self, box):
        x, y = self.in_panel(box)
        return (self.look((x - 3, y - 3), (x + 4, y + 4)).sum(2) < 200).sum() > 4

    def act(self, *actions, window=None):
        """Uses pointer and keys. The actions are words of xdotool; a pair is a place in the window to point at."""
        left, top, _, _ = self.geometry(window)
        words = []
        for action in actions:
            if isinstance(action, tuple):
                x, y = (round(self.scale * length) for length in action)
                words += ["mousemove", left + x, top + y, *self.AFTER_POINTING]
            else:
                words.append(action)
        self.desktop.xdotool(*words)

    def click(self, place):
        self.act(self.in_panel(place), "click", 1)

    def expect_window(self, what, condition):
        """Waits until the right window shows and has the keyboard's focus. Returns it."""
        window = wait_for(what, lambda: condition(self.visible()) and self.visible())
        wait_for(f"the keyboard's focus in {what}", lambda: self.desktop.xdotool("getwindowfocus").strip() == window)
        return window

    def open_about(self, button=1):
        self.act(self.in_panel(HELP_ICON), "click", button)
        return self.expect_about()

    def expect_about(self):
        return self.expect_window("the About window", lambda window: window not in (None, self.window))

    def leave_about(self, about, *actions):
        self.act(*actions, window=about)
        self.expect_window("the main window", lambda window: window == self.window)

    def drag(self, place, button, *moves, follows=True):
        """Drags at a place in the window by these moves, one after the other. The window must follow each of them.
        Afterwards the pointer is far away."""
        left, top, _, _ = self.geometry()
        self.act(place, "mousedown", button)
        for x, y in moves:
            def followed():
                self.desktop.xdotool(*self.BEFORE_DRAGGING, "mousemove", left + place[0] + x, top + place[1] + y)
                return not follows or self.geometry()[:2] == (left + x, top + y)
            wait_for(f"the window, dragged by {x, y} at {place} with button {button}", followed)
        self.desktop.xdotool("mouseup", button, "mousemove", 5, 5)

    def enter(self, columns, rows):
        for box, typed in ((COLUMNS_BOX, columns), (ROWS_BOX, rows)):
            self.act(self.in_panel(box), "click", 1, "key", "ctrl+a", "type", "--", typed)

    def play(self, board, cell, button=1):
        """Presses a ball of a group. Returns the board after it, once the move is over and right."""
        after = model.without(board, model.group(board, cell))
        line = self.balls_left_line()
        self.act(centre(cell), "click", button)
        self.expect_board(after, f"button {button} on {cell} of\n{model.text(board)}")
        # The line changes at the very end of a move: before that, a next press would wait.
        wait_for("another number of balls", lambda: self.balls_left_line() != line)
        return after

    def play_largest(self, board):
        """Plays the largest group. Returns the board after it and the points for it."""
        balls = model.groups(board)[-1]
        return self.play(board, min(balls)), model.points(len(balls))

    def deal(self):
        before = self.board()
        self.click(NEW_GAME)
        wait_for("another dealt board", lambda: self.board() != before and self.is_full())
        return self.board()

    def deal_game(self, balls_left):
        """Deals until a game can end with this number of balls. Returns the board and the presses of that game."""
        left = None
        while left != balls_left:
            board = self.deal()
            presses, left = model.game(board)
        return board, presses
