// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/deal.h"

#include <algorithm>

namespace rules {

void resizeBoard(Game& game, int NbCol, int NbLig) {
    game.board = emptyBoard(NbCol, NbLig);
    game.Total = static_cast<std::int16_t>(game.board.cells.size());
}

void deal(Game& game, int Diff, const RandomSource& random) {
    std::vector<Code>& cells = game.board.cells;
    game.Diff = static_cast<std::int16_t>(std::clamp(Diff, 0, levels - 1));
    game.NbCoul = static_cast<std::int16_t>(game.Diff + 2);
    game.Total = static_cast<std::int16_t>(cells.size());
    game.NBBoules = game.Total;
    game.score = 0;

    std::ranges::fill(cells, Code::none);
    for (std::size_t ball = 0; ball < cells.size(); ++ball) {
        const double drawn = static_cast<double>(random()) * static_cast<double>(cells.size());
        auto cell = std::find(cells.begin() + static_cast<std::ptrdiff_t>(drawn), cells.end(), Code::none);
        if (cell == cells.end()) {
            cell = std::ranges::find(cells, Code::none);
        }
        *cell = codes[ball % game.NbCoul];
    }
}

}  // namespace rules
