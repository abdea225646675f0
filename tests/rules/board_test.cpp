// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/board.h"

#include <set>

#include "rules/deal.h"
#include "tests/rules/board_text.h"

namespace rules {
namespace {

TEST(Board, TextShowsRowsFromTheTop) {
    const Board board = boardOf("r.b .vj pg.");
    EXPECT_EQ(board.cells, (std::vector{Code::red, Code::none, Code::magenta, Code::none, Code::green, Code::grey,
                                        Code::blue, Code::yellow, Code::none}));
    EXPECT_EQ(print(board), "r.b\n.vj\npg.\n");
}

TEST(Board, TextThatShowsNoBoardIsRefused) {
    const std::string largest(maxCells, 'r');
    EXPECT_TRUE(parse(largest));
    for (const std::string& text : {std::string{}, std::string{"\n"}, std::string{"rb\nr"}, std::string{"rx"},
                                    std::string{"r\n\nb"}, std::string{"R"}, largest + 'r'}) {
        EXPECT_FALSE(parse(text)) << text.substr(0, 20);
    }
}

Game dealt(int NbCol, int NbLig, int Diff, const RandomSource& draw) {
    Game game{.Total = 5, .NBBoules = 500, .NbCoul = 2, .Diff = 0, .score = 99};  // of the game before
    resizeBoard(game, NbCol, NbLig);
    EXPECT_EQ(game.Total, game.board.cells.size());
    deal(game, Diff, draw);
    return game;
}

TEST(Deal, FilledCellsPassTheBallOnAndTheLastOnePassesItToTheFirst) {
    EXPECT_EQ(dealt(3, 2, 0, [] { return 0.0F; }).board, boardOf("rrr bbb"));
    EXPECT_EQ(dealt(0, -1, 0, [] { return 0.0F; }).board, boardOf("r")) << "a board without cells";
    const float justBelowOne = 0x1.fffffep-1F;
    EXPECT_EQ(dealt(3, 2, 1, [=] { return justBelowOne; }).board, boardOf("brv vbr"));
}

TEST(Deal, StartsANewGameAtTheNearestLevel) {
    for (const auto& [asked, nearest] : {std::pair{7, 4}, {-1, 0}}) {
        const Game game = dealt(9, 15, asked, Random(4));
        EXPECT_EQ(game.score, 0);
        EXPECT_EQ(game.Total, 9 * 15);
        EXPECT_EQ(game.NBBoules, 9 * 15);
        EXPECT_EQ(game.NbCoul, nearest + 2);
        EXPECT_EQ(game.Diff, nearest);
    }
}

TEST(Deal, ASeedGivesTheSameBoardForEver) {
    const Board board = boardOf(
        "pprbpbgrrjjpgbjrrrvgbrbg "
        "gvvvbvrgjgrjgrbjbrjpjgjv "
        "rbpbvrbpvpjvvprjjvprvjvg "
        "ppgjjvjggvpgpgjvjbbbgpjp "
        "rgrgpbbbrgbgbbppvvrvvjpr");
    EXPECT_EQ(dealt(24, 5, 4, Random(0x0123456789ABCDEF)).board, board);
}

TEST(Random, EverySeedFromTheClockIsAnother) {
    std::set<std::uint64_t> seeds;
    std::generate_n(std::inserter(seeds, seeds.end()), 1000, seedFromClock);
    EXPECT_EQ(seeds.size(), 1000);
}

}  // namespace
}  // namespace rules
