# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""The rules of the game on plain text, for predicting what the program must show.

A board is a tuple of columns from left to right, each a text from top to bottom with one character per cell:
the colour's letter, or "." for an empty cell. Cells are (column, row) pairs counted from the top left.
"""
import random


def text(board):
    return "\n".join("".join(row) for row in zip(*board))


def group(board, cell):
    """The cells of the connected balls of one colour around a ball."""
    found, front = {cell}, [cell]
    while front:
        x, y = front.pop()
        for column, row in ((x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1)):
            inside = 0 <= column < len(board) and 0 <= row < len(board[0])
            if inside and (column, row) not in found and board[column][row] == board[x][y]:
                found.add((column, row))
                front.append((column, row))
    return found


def groups(board):
    """All groups from the smallest to the largest, lone balls first."""
    left = {(x, y) for x, column in enumerate(board) for y, ball in enumerate(column) if ball != "."}
    result = []
    while left:
        result.append(group(board, min(left)))
        left -= result[-1]
    return sorted(result, key=len)


def without(board, balls):
    """The settled board after a group has been removed."""
    columns = ["".join(ball for y, ball in enumerate(column) if ball != "." and (x, y) not in balls)
               for x, column in enumerate(board)]
    columns.sort(key=lambda column: column == "")
    return tuple(column.rjust(len(board[0]), ".") for column in columns)


def points(balls):
    return balls * (balls + 1) * 2 // 3


def game_ending_with(balls_left, board):
    """Presses that leave none or one ball, found by playing at random; None if a hundred games end otherwise."""
    for _ in range(100):
        presses, played = [], board
        # A colour that is spared as long as possible gathers in one group; sparing none leaves odd balls.
        spared = random.choice((*set(board[0]), None))
        while choices := [min(balls) for balls in groups(played) if len(balls) > 1]:
            presses.append(min(choices, key=lambda cell: (played[cell[0]][cell[1]] == spared, random.random())))
            played = without(played, group(played, presses[-1]))
        if len(groups(played)) == balls_left:
            return presses
    return None
