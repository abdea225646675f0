// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/game.h"
#include "rules/host.h"

namespace rules {

/// Removes the group of colour t around cell K, ball by ball, depth first in the order above, below, left, right. Adds
/// the number of removed balls to S. For each ball, calls cellCleared() and then yield() of the host, which must not
/// change the board. Does nothing if cell K does not hold colour t. K must be on the board, and t must not be none.
void efface(Board& board, CellIndex K, Code t, int& S, Host& host);

/// Plays the whole move after a press on cell i: removal, score, status lines, sound, falling, closing up, end of the
/// game. If the press removes no group, changes nothing and does not call the host.
void playMove(Game& game, int i, Host& host);

}  // namespace rules
