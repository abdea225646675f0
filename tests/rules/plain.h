// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <tuple>

#include "rules/settle.h"

/// The rules in their plainest form, pass by pass and cell by cell: too slow and too deep for the game, but simple
/// enough to be trusted. The rules of the game must give the same results.
namespace plain {

using rules::Board;
using rules::Code;

inline void settle(Board& board) {
    auto& cells = board.cells;
    for (int pass = 0; pass < board.NbLig; ++pass) {
        for (std::size_t i = cells.size() - 1; i > 0; --i) {
            if (i % board.NbLig > 0 && cells[i] == Code::none) {
                std::swap(cells[i], cells[i - 1]);
            }
        }
    }
    for (auto column = cells.end(); column != cells.begin();) {
        column -= board.NbLig;
        if (column[board.NbLig - 1] == Code::none) {  // no ball lies on the bottom row
            std::rotate(column, column + board.NbLig, cells.end());
        }
    }
}

/// Where each ball of `before` is in `after`: no ball overtakes another, so the first one is still the first.
inline rules::Landings landings(const Board& before, const Board& after) {
    rules::Landings landings;
    rules::CellIndex next = 0;
    for (const Code ball : before.cells) {
        while (ball != Code::none && after[next] == Code::none) {
            ++next;
        }
        landings.push_back(ball == Code::none ? rules::noCell : next++);
    }
    return landings;
}

/// Removes the ball at this place and the balls of the same colour t around it. Appends their cells in this order.
inline void efface(Board& board, int col, int row, Code t, std::vector<rules::CellIndex>& removed) {
    const auto cell = static_cast<rules::CellIndex>(col * board.NbLig + row);
    if (col < 0 || col >= board.NbCol || row < 0 || row >= board.NbLig || board[cell] != t) {
        return;
    }
    board[cell] = Code::none;
    removed.push_back(cell);
    plain::efface(board, col, row - 1, t, removed);
    plain::efface(board, col, row + 1, t, removed);
    plain::efface(board, col - 1, row, t, removed);
    plain::efface(board, col + 1, row, t, removed);
}

/// What a press does: the size of the group, the cells that lose their balls, in this order, where the other balls
/// land, and the board that is left.
using Outcome = std::tuple<std::size_t, std::vector<rules::CellIndex>, rules::Landings, Board>;

/// Presses cell i, which need not be on the board.
inline Outcome press(const Board& board, int i) {
    Board cleared = board;
    std::vector<rules::CellIndex> removed;
    for (const Code t : rules::codes) {
        plain::efface(cleared, i / board.NbLig, i % board.NbLig, t, removed);
    }
    if (removed.size() < 2) {
        return {removed.size(), {}, {}, board};
    }
    Board settled = cleared;
    plain::settle(settled);
    return {removed.size(), removed, landings(cleared, settled), settled};
}

}  // namespace plain
