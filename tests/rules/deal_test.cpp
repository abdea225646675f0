// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/deal.h"

#include "tests/rules/pictures.h"
#include "tests/rules/plain.h"

namespace rules {
namespace {

Game dealt(int NbCol, int NbLig, int Diff, const Draw& draw) {
    Game game;
    resizeBoard(game, NbCol, NbLig);
    deal(game, Diff, draw);
    return game;
}

TEST(Deal, ColoursAreHandedOutInTurn) {
    const std::vector<std::pair<int, std::vector<std::ptrdiff_t>>> table{
        {1, {167, 167, 166, 0, 0, 0}},
        {4, {84, 84, 83, 83, 83, 83}},
        {7, {84, 84, 83, 83, 83, 83}},  // a level that does not exist is the nearest one
    };
    for (const auto& [Diff, expected] : table) {
        const Game game = dealt(25, 20, Diff, Random(1));
        for (std::size_t k = 0; k < codes.size(); ++k) {
            EXPECT_EQ(std::ranges::count(game.board.cells, codes[k]), expected[k]) << "colour " << k;
        }
    }
}

TEST(Deal, FilledCellsPassTheBallOnAndTheLastOnePassesItToTheFirst) {
    EXPECT_EQ(dealt(3, 2, 0, [] { return 0.0F; }).board, picture("rrr bbb"));
    const float justBelowOne = 0x1.fffffep-1F;
    EXPECT_EQ(dealt(3, 2, 1, [=] { return justBelowOne; }).board, picture("brv vbr"));
}

TEST(Deal, EqualsThePlainDealOnEverySeed) {
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        const int NbCol = 1 + static_cast<int>(seed % 23);
        const int NbLig = 1 + static_cast<int>(seed % 17);
        const Game game = dealt(NbCol, NbLig, static_cast<int>(seed % 5), Random(seed));
        Board expected = emptyBoard(NbCol, NbLig);
        plain::deal(expected, game.NbCoul, Random(seed));
        ASSERT_EQ(game.board, expected) << "seed " << seed;
    }
}

TEST(Deal, SeedMeansTheSameBoardForEver) {
    EXPECT_EQ(dealt(8, 3, 4, Random(2026)).board, picture("vjbjpvpg jgrpgvbr pjvbrgrb"));
}

TEST(Deal, StartsAnewAfterAGame) {
    Game game{.Total = 5, .NBBoules = 500, .NbCoul = 2, .Diff = 0, .score = 99};
    resizeBoard(game, 9, 15);
    deal(game, 3, Random(4));
    EXPECT_EQ(game.score, 0);
    EXPECT_EQ(game.Total, 9 * 15);
    EXPECT_EQ(game.NBBoules, 9 * 15);
    EXPECT_EQ(game.NbCoul, 5);
}

TEST(Random, NumbersAreUniformOverTheUnitInterval) {
    Random random(7);
    std::array<int, 16> buckets{};
    for (int i = 0; i < 160'000; ++i) {
        const float u = random();
        ASSERT_GE(u, 0.0F);
        ASSERT_LT(u, 1.0F);
        ++buckets[static_cast<std::size_t>(u * 16)];
    }
    for (const int count : buckets) {
        EXPECT_NEAR(count, 10'000, 500);  // five standard deviations
    }
}

TEST(Random, EverySeedFromTheClockIsAnother) {
    EXPECT_NE(seedFromClock(), seedFromClock());
}

}  // namespace
}  // namespace rules
