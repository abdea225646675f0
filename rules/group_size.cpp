// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/group_size.h"

namespace rules {

int groupSize(const Board& board, CellIndex i) {
    if (board[i] == Code::none) {
        return 0;
    }
    std::vector<bool> isFound(board.cells.size());
    isFound[i] = true;
    std::vector<CellIndex> group{i};
    for (std::size_t next = 0; next < group.size(); ++next) {
        forEachNeighbour(board, group[next], [&](CellIndex neighbour) {
            if (!isFound[neighbour] && board[neighbour] == board[i]) {
                isFound[neighbour] = true;
                group.push_back(neighbour);
            }
        });
    }
    return static_cast<int>(group.size());
}

}  // namespace rules
