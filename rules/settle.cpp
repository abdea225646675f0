// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/settle.h"

#include <algorithm>

namespace rules {

void settle(Board& board) {
    const auto height = static_cast<std::ptrdiff_t>(board.NbLig);
    auto target = board.cells.begin();
    for (auto column = board.cells.begin(); column != board.cells.end(); column += height) {
        // `column` and `target` may be the same column. Copying from the bottom up reads each ball before its cell is
        // overwritten.
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
