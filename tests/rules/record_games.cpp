// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Plays the recorded games again, as the rules of the program play them or, with "plain", the plain ones. A new game is
// a line with its seed, size and level; the rest of it is then written by
//     build/dev/bin/record_games plain <tests/rules/games.txt >new.txt && mv new.txt tests/rules/games.txt

#include <array>
#include <cstdio>
#include <iostream>
#include <span>

#include "tests/rules/games.h"

int main(int count, char** arguments) {
    const bool isPlain = std::string_view(std::span(arguments, count).back()) == "plain";
    for (std::string line; std::getline(std::cin, line);) {
        std::array<int, 4> game{};
        if (std::sscanf(line.c_str(), "seed %d: %d x %d, level %d", game.data(), &game[1], &game[2], &game[3]) == 4) {
            std::cout << rules::playedGame(isPlain, game[0], game[1], game[2], game[3]);
        }
    }
}
