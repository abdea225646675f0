// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// A line of cells to press one after the other, then the picture of a board, settled or not.

#include <sstream>

#include "tests/fuzz/target.h"
#include "tests/rules/moves.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    std::istringstream presses(text.substr(0, text.find('\n')));
    const auto board = rules::parse(text.substr(std::min(presses.str().size() + 1, size)));
    if (!board || board->cells.size() > 400) {  // the plain rules are slow
        return 0;
    }
    law(rules::parse(rules::print(*board)) == board, "a printed board comes back");
    rules::Game game{.board = *board};
    for (int i = 0; presses >> i;) {
        const plain::Outcome plain = plain::press(game.board, i);
        law(rules::press(game, i) == plain, "a press does the same as by the plain rules");
    }
    return 0;
}
