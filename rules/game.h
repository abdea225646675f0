// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "rules/board.h"

namespace rules {

/// The whole state of one game. Between two moves, `Total` is the number of balls on the board, each ball lies on the
/// bottom row or on another ball, and all empty columns are at the right.
struct Game {
    Board board;
    std::int16_t Total = 0;     ///< balls still on the board
    std::int16_t NBBoules = 0;  ///< balls dealt, equal to the number of cells
    std::int16_t NbCoul = 0;    ///< colours of this game, 2 to 6
    std::int16_t Diff = 0;      ///< level of this game, 0 to 4; each level has its own best score
    std::int64_t score = 0;     ///< shown in the label `sc`
};

}  // namespace rules
