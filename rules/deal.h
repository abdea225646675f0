// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/game.h"
#include "rules/random.h"

namespace rules {

/// Gives the game an empty board of this size; `Total` becomes its number of cells. Sizes as for
/// emptyBoard().
void resizeBoard(Game& game, int NbCol, int NbLig);

/// Starts a game of level Diff (0 to 4, clamped) on the board as sized: every cell gets a ball, the colours
/// are handed out in turn, and each ball lands on the first free cell at or after a drawn one, going round
/// from the last cell to the first. The score becomes 0. Takes one draw a ball.
void deal(Game& game, int Diff, const Draw& draw);

}  // namespace rules
