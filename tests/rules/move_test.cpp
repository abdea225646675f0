// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/move.h"

#include "tests/rules/board_text.h"
#include "tests/rules/recorder.h"

namespace rules {
namespace {

// A game under way on this board, as if all its cells had been dealt.
Game gameOn(const Board& board) {
    Game game{.board = board, .NBBoules = static_cast<std::int16_t>(board.cells.size())};
    game.Total = static_cast<std::int16_t>(game.NBBoules - std::ranges::count(board.cells, Code::none));
    return game;
}

TEST(Move, EventsComeInTheOrderThePlayerSeesThem) {
    struct Row {
        const char *what, *before;
        int press;
        const char* events;
    };
    const std::vector<Row> table{
        {"an ordinary move", "vbv brb brr", 4,
         "4 yield 5 yield 8 yield [1008] 3 balles crevées (8 points.) son5.WAV Il reste 6 balles sur 9. settled "},
        {"a cleared board doubles the score after adding the points", "rr", 0,
         "0 yield 1 yield [1004] 2 balles crevées (4 points.) son2.WAV Il reste 0 balles sur 2. settled [2008] ended"},
        {"one ball left ends the game without doubling", "rrb", 0,
         "0 yield 1 yield [1004] 2 balles crevées (4 points.) son2.WAV Il reste 1 balles sur 3. settled ended"},
        {"two balls without a move left do not end it", "rrbv", 0,
         "0 yield 1 yield [1004] 2 balles crevées (4 points.) son2.WAV Il reste 2 balles sur 4. settled "},
    };
    for (const Row& row : table) {
        Game game = gameOn(boardOf(row.before));
        game.score = 1000;
        Recorder host(game);
        playMove(game, row.press, host);
        EXPECT_EQ(host.events, row.events) << row.what;
    }
}

TEST(Move, LargestGroupIsRemovedWithoutRecursion) {
    Game game = gameOn({217, 151, std::vector(maxCells, Code::red)});
    Recorder host(game);
    playMove(game, 16'000, host);
    EXPECT_EQ(game.Total, 0);
    EXPECT_EQ(game.score, 2 * std::int64_t{715'806'037});
}

}  // namespace
}  // namespace rules
