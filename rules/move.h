// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/game.h"
#include "rules/host.h"

namespace rules {

/// Whether a press on cell i removes a group: cell i holds a ball and a neighbour holds a ball of the same colour.
/// False for an index outside of the board.
bool isGroup(const Board& board, int i);

/// Clears the group of colour t around cell K, ball by ball and depth first (above, below, left, right), and adds the
/// number of balls to S. Calls cellCleared() and then yield() on the host for each ball; the host must not change the
/// board. Does nothing if K does not hold t.
void efface(Board& board, CellIndex K, Code t, int& S, Host& host);

/// Plays the whole move of a press on cell i: removal, score, status lines, sound, falling, closing up, end of the
/// game. If the press removes no group, nothing changes and the host is not called.
void playMove(Game& game, int i, Host& host);

}  // namespace rules
