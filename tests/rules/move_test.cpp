// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/move.h"

#include "tests/rules/pictures.h"
#include "tests/rules/recorder.h"

namespace rules {
namespace {

// A game under way on this board, as if all its cells had been dealt.
Game gameOn(const Board& board) {
    Game game{.board = board, .NBBoules = static_cast<std::int16_t>(board.cells.size())};
    game.Total = static_cast<std::int16_t>(game.NBBoules - std::ranges::count(board.cells, Code::none));
    return game;
}

TEST(Move, BoardBeforePressBoardAfterPoints) {
    struct Row {
        const char *fault, *before;
        int press;
        const char* after;
        int score;
    };
    const std::vector<Row> table{
        {"a pair is not removed", "rr bv", 0, ".. bv", 4},
        {"diagonal balls count as neighbours", "rbr brb rbr", 4, "rbr brb rbr", 0},
        {"an empty cell plays", ".. rr", 0, ".. rr", 0},
        {"an empty cell next to empty ones plays", "... rb.", 6, "... rb.", 0},
        {"bottom and top of neighbouring columns connect", "br rb", 1, "br rb", 0},
        {"another red group goes with it diagonally", "rrb bbr bbr", 0, "..b bbr bbr", 4},
        {"a ball of the group stays", "rbb rbb rrr", 8, "... bb. bb.", 20},
        {"the balls above stay up", "bv rr jb", 1, ".. bv jb", 4},
        {"balls fall no deeper than the first hole", "v . r j j . b", 3, ". . . . v r b", 4},
        {"a column falls with another one's balls", "..b r.. rv.", 1, "... ... vb.", 4},
        {"two empty columns close up as one", "rvvb rvvb", 2, "rb.. rb..", 13},
        {"an empty first column stays", "vrb vrb", 0, "rb. rb.", 4},
        {"an empty last column takes the balls beside it", "rbv rbv", 5, "rb. rb.", 4},
    };
    for (const Row& row : table) {
        Game game = gameOn(picture(row.before));
        Recorder host(game);
        playMove(game, row.press, host);
        EXPECT_EQ(game.board, picture(row.after)) << row.fault;
        EXPECT_EQ(game.score, row.score) << row.fault;
        EXPECT_EQ(host.events.empty(), row.score == 0) << row.fault;
    }
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
        Game game = gameOn(picture(row.before));
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
