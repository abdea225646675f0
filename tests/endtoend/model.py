# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""The rules of the game on plain text, for predicting what the program must show.

A board is a tuple of columns from left to right, each a text from top to bottom with one character per cell:
the colour's letter, or "." for an empty cell. Cells are (column, row) pairs counted from the top left.
"""


def text(board):
    return "\n".join("".join(row) for row in zip(*board))


def groups(board):
    """All groups from the smallest to the largest, lone balls first: the cells of each."""
    left = {(x, y): ball for x, column in enumerate(board) for y, ball in enumerate(column) if ball != "."}
    result = []
    while left:
        cell, colour = left.popitem()
        found = [cell]
        for x, y in found:  # which grows meanwhile
            for near in ((x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1)):
                if left.get(near) == colour:
                    del left[near]
                    found.append(near)
        result.append(set(found))
    return sorted(result, key=len)


def group(board, cell):
    return next(found for found in groups(board) if cell in found)


def without(board, balls):
    """The settled board after a group has been removed."""
    columns = ["".join(ball for y, ball in enumerate(column) if ball != "." and (x, y) not in balls)
               for x, column in enumerate(board)]
    columns.sort(key=lambda column: column == "")
    return tuple(column.rjust(len(board[0]), ".") for column in columns)


def balls_left(board):
    return sum(len(column) - column.count(".") for column in board)


def points(balls):
    return balls * (balls + 1) * 2 // 3


def game(board):
    """The presses of a whole game, each on the largest group, and how many balls it leaves."""
    presses = []
    while choices := [found for found in groups(board) if len(found) > 1]:
        presses.append(min(choices[-1]))
        board = without(board, choices[-1])
    return presses, balls_left(board)
