// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <sstream>

#include "rules/deal.h"
#include "rules/move.h"
#include "tests/rules/plain.h"
#include "tests/rules/recorder.h"

namespace rules {

/// Plays a move: the cells that it clears, in order.
inline std::vector<CellIndex> press(Game& game, int i) {
    Recorder host(game);
    playMove(game, i, host);
    return host.removed;
}

/// One game, by the plain rules or by those of the program, as text: a line for the deal and one for each press, with
/// a hash (FNV-1a) of the cells that were cleared and of the board that is left. Three of four presses look for a group
/// until there is none.
inline std::string playedGame(bool isPlain, int seed, int NbCol, int NbLig, int Diff) {
    std::ostringstream text;
    text << "seed " << seed << ": " << NbCol << " x " << NbLig << ", level " << Diff;
    Random random(static_cast<std::uint64_t>(seed));
    Game game{.board = emptyBoard(NbCol, NbLig)};
    deal(game, Diff, std::ref(random));
    std::vector<CellIndex> removed;
    for (int presses = 0, tried = 0;; ++presses) {
        std::uint64_t hash = 0xCBF29CE484222325U;
        const auto add = [&hash](auto value) { hash = (hash ^ static_cast<std::uint64_t>(value)) * 0x100000001B3U; };
        std::ranges::for_each(removed, add);
        std::ranges::for_each(game.board.cells, add);
        text << ", score " << game.score << ", " << game.Total << " left, " << std::hex << hash << std::dec << '\n';
        if (presses == 60 || tried == game.NBBoules) {
            return text.str();
        }
        int i = static_cast<int>(random() * static_cast<float>(game.NBBoules));
        Game trial = game;
        for (tried = 0; presses % 4 != 0 && tried < game.NBBoules && plain::press(trial, i).empty(); ++tried) {
            i = (i + 1) % game.NBBoules;
        }
        const std::int64_t before = game.score;
        removed = (isPlain ? plain::press : press)(game, i);
        text << i << ": " << removed.size() << " balls, " << game.score - before << " points";
    }
}

}  // namespace rules
