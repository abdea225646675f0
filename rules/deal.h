// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/game.h"
#include "rules/random.h"

namespace rules {

/// Gives the game an empty board of NbCol columns and NbLig rows (see emptyBoard() for the possible sizes). `Total`
/// becomes the number of cells, as if the balls were already dealt.
void resizeBoard(Game& game, int NbCol, int NbLig);

/// Starts a game of level Diff (clamped to the existing levels) on the current board, with score 0. Puts one ball into
/// every cell and gives the balls the colours in turn. For each ball, one random number selects a cell. If the selected
/// cell already has a ball, the new ball goes to the next empty cell. Cell 0 follows the last cell.
void deal(Game& game, int Diff, const RandomSource& random);

}  // namespace rules
