// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "rules/board.h"

namespace rules {

/// For each cell the number of balls in its group: connected balls of one colour, 1 for a lone ball, 0 for an empty
/// cell.
std::vector<int> groupSizes(const Board& board);

/// The sizes of all groups of a board that is asked about cell by cell: counted anew only when the board has changed.
class GroupSizes {
  public:
    /// The size of the group of cell i, which must be a cell of the board.
    int at(const Board& board, CellIndex i);

  private:
    Board counted;
    std::vector<int> sizes;
};

}  // namespace rules
