// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "rules/board.h"

namespace rules {

/// The number of balls in the group of cell i, which must be a cell of the board: the connected balls of its colour. 1
/// for a lone ball, 0 for an empty cell.
int groupSize(const Board& board, CellIndex i);

/// The same for every cell, in the order of the cells. It visits each ball once.
std::vector<int> groupSizes(const Board& board);

}  // namespace rules
