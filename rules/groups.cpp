// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/groups.h"

namespace rules {

std::vector<int> groupSizes(const Board& board) {
    std::vector<int> sizes(board.cells.size(), 0);
    std::vector<CellIndex> group;
    for (std::size_t start = 0; start < sizes.size(); ++start) {
        if (sizes[start] != 0 || board.cells[start] == Code::none) {
            continue;
        }
        group = {static_cast<CellIndex>(start)};
        sizes[start] = 1;
        for (std::size_t next = 0; next < group.size(); ++next) {
            forEachNeighbour(board, group[next], [&](CellIndex neighbour) {
                if (sizes[neighbour] == 0 && board[neighbour] == board.cells[start]) {
                    sizes[neighbour] = 1;
                    group.push_back(neighbour);
                }
            });
        }
        for (const CellIndex cell : group) {
            sizes[cell] = static_cast<int>(group.size());
        }
    }
    return sizes;
}

int GroupSizes::at(const Board& board, CellIndex i) {
    if (counted != board) {
        counted = board;
        sizes = groupSizes(board);
    }
    return sizes[i];
}

}  // namespace rules
