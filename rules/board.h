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

/// The content of a cell: the colour code of its ball, or none. The value is the character for it in the text form of a
/// board.
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

/// The number of levels: level 0 has two colours, the last one has all of them.
inline constexpr int levels = codes.size() - 1;

using CellIndex = std::int16_t;

/// The largest number of cells of a board: indices and counters are 16-bit.
inline constexpr int maxCells = INT16_MAX;

struct Position {
    int col;
    int row;
};

/// The grid of cells, numbered from 0 column by column: column 0 is at the left, row 0 at the top. The cell below cell
/// i is i + 1, the cell to its right is i + NbLig.
struct Board {
    int NbCol = 0;
    int NbLig = 0;
    std::vector<Code> cells;

    Code& operator[](CellIndex i) { return cells[i]; }
    Code operator[](CellIndex i) const { return cells[i]; }
    bool operator==(const Board&) const = default;

    /// Whether i is the index of a cell of this board.
    bool contains(int i) const { return i >= 0 && i < NbCol * NbLig; }
    /// The index of the cell at p, which must be on this board.
    CellIndex indexOf(Position p) const { return static_cast<CellIndex>(p.col * NbLig + p.row); }
    /// The position of cell i, which must be a cell of this board.
    Position positionOf(CellIndex i) const { return {i / NbLig, i % NbLig}; }
};

/// A board without balls. A count below one is raised to one. The caller makes sure that the product is at most
/// maxCells.
Board emptyBoard(int NbCol, int NbLig);

/// Calls visit(index) for each existing neighbour of cell i, in the order above, below, left, right.
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

/// Reads a board from the text form that print() writes; the last line break may be missing. Returns nothing if the
/// lines differ in length, a character is no cell code, or there are no cells or more than maxCells.
std::optional<Board> parse(std::string_view text);

}  // namespace rules
