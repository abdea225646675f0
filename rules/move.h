// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/game.h"
#include "rules/host.h"

namespace rules {

/// Whether a press on cell i removes a group: i holds a ball and a neighbour holds one of the same colour. An
/// index outside of the board removes nothing.
bool isGroup(const Board& board, int i);

/// Clears the group of colour t that cell K belongs to, ball by ball and depth first (above, below, left,
/// right), and adds the number of balls to S. The host hears of each ball and is yielded to after it; it must
/// not change the board. Does nothing if K does not hold t.
void efface(Board& board, CellIndex K, Code t, int& S, Host& host);

/// Plays the whole move of a press on cell i: removal, score, status, sound, falling, closing up, end of the
/// game. A press that removes no group changes nothing and calls nothing.
void playMove(Game& game, int i, Host& host);

}  // namespace rules
