// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "rules/board.h"

namespace rules {

/// Calls visit(index) for each neighbour of cell i on the board, in the order above, below, left, right.
template <typename Visit>
void forEachNeighbour(const Board& board, CellIndex i, Visit visit) {
    const auto [col, row] = board.positionOf(i);
    const auto neighbour = [i](int offset) { return static_cast<CellIndex>(i + offset); };
    if (row > 0) {
        visit(neighbour(-1));
    }
    if (row < board.NbLig - 1) {
        visit(neighbour(+1));
    }
    if (col > 0) {
        visit(neighbour(-board.NbLig));
    }
    if (col < board.NbCol - 1) {
        visit(neighbour(+board.NbLig));
    }
}

/// Whether a press on cell i removes a group: cell i and at least one of its neighbours hold balls of the same colour.
/// False if i is not on the board.
bool isGroup(const Board& board, int i);

/// Whether the board has a group: two neighbours that hold balls of the same colour.
bool hasGroup(const Board& board);

/// The number of balls in the group of cell i: the ball in the cell and all connected balls of the same colour. Returns
/// 1 for a lone ball and 0 for an empty cell. Cell i must be on the board.
int groupSize(const Board& board, CellIndex i);

/// The groupSize() of every cell of the board, by cell index. Visits each ball only once, so it is faster than one call
/// of groupSize() for each cell.
std::vector<int> groupSizes(const Board& board);

}  // namespace rules
