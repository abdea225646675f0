// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/deal.h"
#include "rules/move.h"
#include "rules/outcome.h"
#include "tests/rules/pictures.h"
#include "tests/rules/plain.h"
#include "tests/rules/recorder.h"

namespace rules {
namespace {

// What a press on cell i removes, in order, from the plain rules, which leave the board settled.
std::vector<CellIndex> plainMove(Board& board, int i) {
    const Board before = board;
    std::vector<CellIndex> removed;
    if (board[plain::index(i)] != Code::none) {
        plain::efface(board, i, board[plain::index(i)], removed);
    }
    if (removed.size() < 2) {
        board = before;
        return {};
    }
    plain::settle(board);
    return removed;
}

TEST(Laws, EveryMoveOfThousandsOfGamesEqualsThePlainOneAndTheScoreIsTheSumOfItsMoves) {
    for (int seed = 0; seed < 2000; ++seed) {
        Random random(static_cast<std::uint64_t>(seed));
        Game game;
        resizeBoard(game, 1 + seed % 13, 1 + seed % 11);
        deal(game, seed % 5, random);
        std::int64_t sumOfMoves = 0;
        for (int press = 0; press < 60 && game.Total > 0; ++press) {
            const int i = static_cast<int>(random() * static_cast<float>(game.NBBoules));
            Board expected = game.board;
            const auto removed = plainMove(expected, i);
            sumOfMoves += removed.empty() ? 0 : pointsFor(static_cast<int>(removed.size()));

            Recorder host(game);
            playMove(game, i, host);
            ASSERT_EQ(host.removed, removed) << "seed " << seed << ", cell " << i;
            ASSERT_EQ(game.board, expected) << "seed " << seed << ", cell " << i;
            ASSERT_EQ(game.Total, game.NBBoules - std::ranges::count(game.board.cells, Code::none));
            ASSERT_EQ(game.score, sumOfMoves * (game.Total == 0 ? 2 : 1));
        }
    }
}

}  // namespace
}  // namespace rules
