// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/board.h"

#include <algorithm>

namespace rules {
namespace {

bool isCellCode(char character) {
    const auto code = static_cast<Code>(character);
    return code == Code::none || std::ranges::find(codes, code) != codes.end();
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

}  // namespace

Board emptyBoard(int NbCol, int NbLig) {
    NbCol = std::max(NbCol, 1);
    NbLig = std::max(NbLig, 1);
    const auto cells = static_cast<std::size_t>(NbCol) * NbLig;
    return {NbCol, NbLig, std::vector<Code>(cells, Code::none)};
}

std::string print(const Board& board) {
    std::string text;
    text.reserve(board.cells.size() + board.NbLig);
    for (int row = 0; row < board.NbLig; ++row) {
        for (int col = 0; col < board.NbCol; ++col) {
            text += static_cast<char>(board[static_cast<CellIndex>(col * board.NbLig + row)]);
        }
        text += '\n';
    }
    return text;
}

std::optional<Board> parse(std::string_view text) {
    const auto lines = linesOf(text);
    if (lines.empty() || lines[0].empty() || lines.size() > maxCells / lines[0].size()) {
        return std::nullopt;
    }
    Board board = emptyBoard(static_cast<int>(lines[0].size()), static_cast<int>(lines.size()));
    for (std::size_t row = 0; row < lines.size(); ++row) {
        if (lines[row].size() != lines[0].size() || !std::ranges::all_of(lines[row], isCellCode)) {
            return std::nullopt;
        }
        for (std::size_t col = 0; col < lines[row].size(); ++col) {
            board.cells[col * lines.size() + row] = static_cast<Code>(lines[row][col]);
        }
    }
    return board;
}

}  // namespace rules
