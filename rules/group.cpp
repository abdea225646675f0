// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/group.h"

namespace rules {
namespace {

std::vector<CellIndex> groupOf(const Board& board, CellIndex i, std::vector<bool>& isFound) {
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

bool isGroup(const Board& board, int i) {
    if (!board.contains(i)) {
        return false;
    }
    const auto cell = static_cast<CellIndex>(i);
    const Code code = board[cell];
    bool match = false;
    if (code != Code::none) {
        forEachNeighbour(board, cell, [&](CellIndex neighbour) { match |= board[neighbour] == code; });
    }
    return match;
}

bool hasGroup(const Board& board) {
    CellIndex i = 0;
    while (board.contains(i) && !isGroup(board, i)) {
        ++i;
    }
    return board.contains(i);
}

int groupSize(const Board& board, CellIndex i) {
    std::vector<bool> isFound(board.cells.size());
    return board[i] == Code::none ? 0 : static_cast<int>(groupOf(board, i, isFound).size());
}

std::vector<int> groupSizes(const Board& board) {
    std::vector<int> sizes(board.cells.size());
    std::vector<bool> isFound(board.cells.size());
    for (CellIndex i = 0; board.contains(i); ++i) {
        if (board[i] != Code::none && !isFound[i]) {
            const std::vector<CellIndex> group = groupOf(board, i, isFound);
            for (const CellIndex member : group) {
                sizes[member] = static_cast<int>(group.size());
            }
        }
    }
    return sizes;
}

}  // namespace rules
