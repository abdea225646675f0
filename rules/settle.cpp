// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/settle.h"

#include <algorithm>

namespace rules {

Landings settle(Board& board) {
    Landings landings(board.cells.size(), noCell);
    const auto height = static_cast<std::ptrdiff_t>(board.NbLig);
    const auto first = board.cells.begin();
    auto target = first;
    for (auto column = first; column != board.cells.end(); column += height) {
        // `column` and `target` may be the same column. Copying from the bottom up reads each ball before its cell is
        // overwritten.
        auto landing = target + height;
        for (auto cell = column + height; cell != column;) {
            if (*--cell != Code::none) {
                *--landing = *cell;
                landings[cell - first] = static_cast<CellIndex>(landing - first);
            }
        }
        if (landing != target + height) {
            std::fill(target, landing, Code::none);
            target += height;
        }
    }
    std::fill(target, board.cells.end(), Code::none);
    return landings;
}

}  // namespace rules
