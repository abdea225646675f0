// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/deal.h"

#include <set>

#include "tests/rules/board_text.h"

namespace rules {
namespace {

Game dealt(int NbCol, int NbLig, int Diff, const RandomSource& draw) {
    Game game;
    resizeBoard(game, NbCol, NbLig);
    deal(game, Diff, draw);
    return game;
}

TEST(Deal, FilledCellsPassTheBallOnAndTheLastOnePassesItToTheFirst) {
    EXPECT_EQ(dealt(3, 2, 0, [] { return 0.0F; }).board, boardOf("rrr bbb"));
    EXPECT_EQ(dealt(0, -1, 0, [] { return 0.0F; }).board, boardOf("r")) << "a board without cells";
    const float justBelowOne = 0x1.fffffep-1F;
    EXPECT_EQ(dealt(3, 2, 1, [=] { return justBelowOne; }).board, boardOf("brv vbr"));
}

TEST(Deal, StartsAnewAfterAGame) {
    Game game{.Total = 5, .NBBoules = 500, .NbCoul = 2, .Diff = 0, .score = 99};
    resizeBoard(game, 9, 15);
    EXPECT_EQ(game.Total, 9 * 15);
    for (const auto& [asked, nearest] : {std::pair{7, 4}, {-1, 0}}) {
        deal(game, asked, Random(4));
        EXPECT_EQ(game.score, 0);
        EXPECT_EQ(game.Total, 9 * 15);
        EXPECT_EQ(game.NBBoules, 9 * 15);
        EXPECT_EQ(game.NbCoul, nearest + 2);
        EXPECT_EQ(game.Diff, nearest);
    }
}

TEST(Random, EverySeedFromTheClockIsAnother) {
    std::set<std::uint64_t> seeds;
    std::generate_n(std::inserter(seeds, seeds.end()), 1000, seedFromClock);
    EXPECT_EQ(seeds.size(), 1000);
}

}  // namespace
}  // namespace rules
