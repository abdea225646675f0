// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/settle.h"

#include <algorithm>

namespace rules {

void settle(Board& board) {
    const auto height = static_cast<std::ptrdiff_t>(board.NbLig);
    auto target = board.cells.begin();
    for (auto column = board.cells.begin(); column != board.cells.end(); column += height) {
        // Source and target may be the same column: from the bottom up, no ball is overwritten before it is read.
        auto landing = target + height;
        for (auto cell = column + height; cell != column;) {
            if (*--cell != Code::none) {
                *--landing = *cell;
            }
        }
        if (landing != target + height) {
            std::fill(target, landing, Code::none);
            target += height;
        }
    }
    std::fill(target, board.cells.end(), Code::none);
}

}  // namespace rules
