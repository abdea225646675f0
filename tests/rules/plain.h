// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "rules/game.h"

/// The rules in their plainest form, pass by pass and cell by cell: too slow or too deep to play with, simple
/// enough to be trusted. What the game runs on must equal them.
namespace plain {

using rules::Board;
using rules::CellIndex;
using rules::Code;

inline CellIndex index(int i) {
    return static_cast<CellIndex>(i);
}

inline void settle(Board& board) {
    const auto moveContent = [&](int from, int to) {
        board[index(to)] = board[index(from)];
        board[index(from)] = Code::none;
    };
    const int cells = static_cast<int>(board.cells.size());
    for (int pass = 0; pass < board.NbLig; ++pass) {
        for (int i = cells - 1; i >= 0; --i) {
            if (i % board.NbLig > 0 && board[index(i)] == Code::none) {
                moveContent(i - 1, i);
            }
        }
    }
    for (int col = board.NbCol - 1; col >= 0; --col) {
        const auto top = board.cells.begin() + static_cast<std::ptrdiff_t>(col) * board.NbLig;
        if (std::all_of(top, top + board.NbLig, [](Code code) { return code == Code::none; })) {
            for (int i = (col + 1) * board.NbLig; i < cells; ++i) {
                moveContent(i, i - board.NbLig);
            }
        }
    }
}

/// Clears the group of cell K recursively and appends each cell in the order of its removal.
inline void efface(Board& board, int K, Code t, std::vector<CellIndex>& removed) {
    board[index(K)] = Code::none;
    removed.push_back(index(K));
    const int col = K / board.NbLig;
    const int row = K - col * board.NbLig;
    if (row > 0 && board[index(K - 1)] == t) {
        efface(board, K - 1, t, removed);
    }
    if (row < board.NbLig - 1 && board[index(K + 1)] == t) {
        efface(board, K + 1, t, removed);
    }
    if (col > 0 && board[index(K - board.NbLig)] == t) {
        efface(board, K - board.NbLig, t, removed);
    }
    if (col < board.NbCol - 1 && board[index(K + board.NbLig)] == t) {
        efface(board, K + board.NbLig, t, removed);
    }
}

/// Plays the press of any cell, on the board or not: the cells that it clears, in order.
inline std::vector<CellIndex> press(rules::Game& game, int i) {
    Board board = game.board;
    std::vector<CellIndex> removed;
    if (i >= 0 && i < board.NbCol * board.NbLig && board[index(i)] != Code::none) {
        plain::efface(board, i, board[index(i)], removed);
    }
    if (removed.size() < 2) {
        return {};
    }
    plain::settle(board);
    game.board = board;
    const auto n = static_cast<double>(removed.size());
    game.score += static_cast<std::int64_t>(std::floor(n * (n + 1) / 1.5));
    game.Total = index(game.Total - static_cast<int>(removed.size()));
    game.score *= game.Total == 0 ? 2 : 1;
    return removed;
}

}  // namespace plain
