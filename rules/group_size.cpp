// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/group_size.h"

namespace rules {

namespace {

std::vector<CellIndex> groupOf(CellIndex i, const Board& board, std::vector<bool>& isFound) {
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
    return group;
}

}  // namespace

int groupSize(const Board& board, CellIndex i) {
    std::vector<bool> isFound(board.cells.size());
    return board[i] == Code::none ? 0 : static_cast<int>(groupOf(i, board, isFound).size());
}

std::vector<int> groupSizes(const Board& board) {
    std::vector<int> sizes(board.cells.size());
    std::vector<bool> isFound(board.cells.size());
    for (CellIndex i = 0; board.contains(i); ++i) {
        if (board[i] != Code::none && !isFound[i]) {
            const std::vector<CellIndex> group = groupOf(i, board, isFound);
            for (const CellIndex member : group) {
                sizes[member] = static_cast<int>(group.size());
            }
        }
    }
    return sizes;
}

}  // namespace rules
