// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// A line of cells to press one after the other, then the picture of a board, settled or not.

#include <sstream>

#include "tests/fuzz/target.h"
#include "tests/rules/games.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    std::istringstream presses(text.substr(0, text.find('\n')));
    const auto board = rules::parse(text.substr(std::min(presses.str().size() + 1, size)));
    if (!board || board->cells.size() > 400) {  // the plain rules are slow
        return 0;
    }
    law(rules::parse(rules::print(*board)) == board, "a printed board comes back");
    rules::Game game{.board = *board, .NBBoules = static_cast<std::int16_t>(board->cells.size())};
    game.Total = static_cast<std::int16_t>(game.NBBoules - std::ranges::count(board->cells, rules::Code::none));
    rules::Game plain = game;
    for (int i = 0; presses >> i;) {
        law(rules::press(game, i) == plain::press(plain, i), "a press clears the same cells in the same order");
        law(game.board == plain.board, "the balls come to rest in the same cells");
        law(game.score == plain.score && game.Total == plain.Total, "score and balls left are the same");
    }
    return 0;
}
