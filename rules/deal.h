// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/game.h"
#include "rules/random.h"

namespace rules {

/// Gives the game an empty board of this size and sets `Total` to its number of cells. Sizes as for emptyBoard().
void resizeBoard(Game& game, int NbCol, int NbLig);

/// Starts a game of level Diff (clamped to the existing levels) on the current board, with score 0. Hands the colours
/// out in turn, one ball per cell. Each ball takes one random number for a cell; if that cell is filled, the ball goes
/// to the next free cell, and after the last cell comes the first.
void deal(Game& game, int Diff, const RandomSource& random);

}  // namespace rules
