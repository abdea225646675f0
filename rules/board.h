// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rules {

/// What a cell holds: a ball's colour code, or nothing. The value is the character that stands for it in the
/// text form of a board.
enum class Code : char {
    none = '.',
    red = 'r',
    blue = 'b',
    green = 'v',
    yellow = 'j',
    magenta = 'p',
    grey = 'g',
};

/// The colours in the order in which a deal hands them out.
inline constexpr std::array codes{Code::red, Code::blue, Code::green, Code::yellow, Code::magenta, Code::grey};

using CellIndex = std::int16_t;

/// The most cells that a board may have: indices and counters are 16-bit.
inline constexpr int maxCells = INT16_MAX;

struct Position {
    int col;
    int row;
};

/// The grid of cells, numbered from 0 column by column: column 0 at the left, row 0 at the top, the cell
/// below cell i is i + 1 and the cell to its right i + NbLig.
struct Board {
    int NbCol = 0;
    int NbLig = 0;
    std::vector<Code> cells;

    Code& operator[](CellIndex i) { return cells[i]; }
    Code operator[](CellIndex i) const { return cells[i]; }
    bool operator==(const Board&) const = default;

    /// Whether i is the index of a cell of this board.
    bool contains(int i) const { return i >= 0 && i < NbCol * NbLig; }
    /// The cell that stands there; p must lie on this board.
    CellIndex indexOf(Position p) const { return static_cast<CellIndex>(p.col * NbLig + p.row); }
    /// Where cell i stands; i must be a cell of this board.
    Position positionOf(CellIndex i) const { return {i / NbLig, i % NbLig}; }
};

/// A board without balls. Counts below one are taken as one; a product above maxCells must be kept away by
/// the caller.
Board emptyBoard(int NbCol, int NbLig);

/// Calls visit(index) for each neighbour of cell i that exists, in the order above, below, left, right.
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

/// The board as text, one character per cell and one line per row, top row first.
std::string print(const Board& board);

/// The board that a text shows, as print() writes it; nothing if lines differ in length, a character stands
/// for no cell, or there are no cells or too many. A final line break may be missing.
std::optional<Board> parse(std::string_view text);

}  // namespace rules
