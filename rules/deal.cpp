// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/deal.h"

#include <algorithm>
#include <numeric>

namespace rules {
namespace {

// Finds the first free cell at or after a given one without walking over the filled ones: each filled cell
// points towards a later one, and every search shortens the road it took. Walking would cost millions of
// steps when the largest board fills up.
class FreeCells {
  public:
    explicit FreeCells(std::size_t count) : next(count + 1) { std::iota(next.begin(), next.end(), std::size_t{0}); }

    std::size_t takeAtOrAfter(std::size_t cell) {
        cell = find(cell);
        if (cell == end()) {
            cell = find(0);
        }
        next[cell] = static_cast<Cell>(cell + 1);
        return cell;
    }

  private:
    using Cell = std::uint16_t;  // half the memory of wider ones is half the time on a large board

    std::size_t end() const { return next.size() - 1; }

    std::size_t find(std::size_t cell) {
        while (next[cell] != cell) {
            next[cell] = next[next[cell]];
            cell = next[cell];
        }
        return cell;
    }

    std::vector<Cell> next;
};

}  // namespace

void resizeBoard(Game& game, int NbCol, int NbLig) {
    game.board = emptyBoard(NbCol, NbLig);
    game.Total = static_cast<std::int16_t>(game.board.cells.size());
}

void deal(Game& game, int Diff, const Draw& draw) {
    const std::size_t count = game.board.cells.size();
    game.Diff = static_cast<std::int16_t>(std::clamp(Diff, 0, 4));
    game.NbCoul = static_cast<std::int16_t>(game.Diff + 2);
    game.Total = static_cast<std::int16_t>(count);
    game.NBBoules = game.Total;
    game.score = 0;

    FreeCells free(count);
    for (std::size_t ball = 0; ball < count; ++ball) {
        const double drawn = static_cast<double>(draw()) * static_cast<double>(count);
        game.board.cells[free.takeAtOrAfter(static_cast<std::size_t>(drawn))] = codes[ball % game.NbCoul];
    }
}

}  // namespace rules
