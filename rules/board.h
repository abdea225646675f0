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

/// The content of a cell: the colour of its ball, or none. The value is the character of the cell in the text form of a
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

/// The colours in the order in which a deal gives them to the balls.
inline constexpr std::array codes{Code::red, Code::blue, Code::green, Code::yellow, Code::magenta, Code::grey};

/// The number of levels. Level 0 has two colours, and each further level has one more.
inline constexpr int levels = codes.size() - 1;

using CellIndex = std::int16_t;

/// The largest number of cells of a board. Cell indices and ball counts are signed 16-bit numbers.
inline constexpr int maxCells = INT16_MAX;

struct Position {
    int col;
    int row;
};

/// A grid of cells. The cells are numbered from 0, column by column: column 0 is at the left, row 0 at the top. Below
/// cell i is cell i + 1, and to the right of cell i is cell i + NbLig.
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

/// A board of NbCol columns and NbLig rows, without balls. A number below 1 becomes 1. The caller makes sure that the
/// board has at most maxCells cells.
Board emptyBoard(int NbCol, int NbLig);

/// The board as text, one character per cell and one line per row, top row first.
std::string print(const Board& board);

/// Reads a board from text in the form that print() writes. The last line break may be missing. Returns nullopt if the
/// lines differ in length, if a character is no cell code, or if the board would have no cells or more than maxCells.
std::optional<Board> parse(std::string_view text);

}  // namespace rules
