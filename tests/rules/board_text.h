// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "rules/board.h"

namespace rules {

/// Failures show boards as pictures.
inline void PrintTo(const Board& board, std::ostream* out) {
    *out << '\n' << print(board);
}

/// The board that a picture shows, its rows separated by blanks: "rb .v" has two columns and two rows.
inline Board boardOf(std::string text) {
    std::ranges::replace(text, ' ', '\n');
    const auto board = parse(text);
    EXPECT_TRUE(board) << "not a board: " << text;
    return board.value_or(emptyBoard(1, 1));
}

}  // namespace rules
