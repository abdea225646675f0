// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/settle.h"

#include "rules/random.h"
#include "tests/rules/pictures.h"
#include "tests/rules/plain.h"

namespace rules {
namespace {

TEST(Settle, BallsFallAndColumnsCloseUp) {
    struct Row {
        const char *fault, *before, *after;
    };
    const std::vector<Row> table{
        {"a hole within a column", "r . b .", ". . r b"},
        {"a ball over a removed bottom", "r b .", ". r b"},
        {"three removed at once", "r b . . . v", ". . . r b v"},
        {"balls crossing columns", "r. .. .b", ".. .. rb"},
        {"empty columns between others", "r.b.v r.b.v", "rbv.. rbv.."},
        {"adjacent empty columns", "r..b.. r..b..", "rb.... rb...."},
        {"an empty last column", "rb. rb.", "rb. rb."},
        {"an empty first column", ".rb .rb", "rb. rb."},
        {"a lone ball at the top of the last column", "..b r.. v..", "... r.. vb."},
        {"an empty board", ".. ..", ".. .."},
        {"a settled board", "..v .bv rbv", "..v .bv rbv"},
    };
    for (const Row& row : table) {
        Board board = picture(row.before);
        settle(board);
        EXPECT_EQ(board, picture(row.after)) << row.fault;
    }
}

TEST(Settle, EqualsThePlainPassesOnThousandsOfBoards) {
    Random random(11);
    const auto below = [&](int bound) { return static_cast<int>(random() * static_cast<float>(bound)); };
    for (int round = 0; round < 4000; ++round) {
        Board board = emptyBoard(1 + below(12), 1 + below(12));
        const int density = below(8);
        for (Code& cell : board.cells) {
            cell = below(8) < density ? codes[below(6)] : Code::none;
        }
        Board expected = board;
        plain::settle(expected);
        const Board before = board;
        settle(board);
        ASSERT_EQ(board, expected) << "from\n" << print(before);
    }
}

}  // namespace
}  // namespace rules
