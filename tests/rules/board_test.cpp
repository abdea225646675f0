// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/board.h"

#include "rules/group.h"
#include "tests/rules/board_text.h"

namespace rules {
namespace {

TEST(Board, TextFormShowsRowsFromTheTopAndComesBack) {
    const Board board = boardOf("r.b .vj pg.");
    EXPECT_EQ(board.cells, (std::vector{Code::red, Code::none, Code::magenta, Code::none, Code::green, Code::grey,
                                        Code::blue, Code::yellow, Code::none}));
    EXPECT_EQ(print(board), "r.b\n.vj\npg.\n");
    EXPECT_EQ(parse(print(board)), board);
}

TEST(Board, TextThatShowsNoBoardIsRefused) {
    for (const std::string& text : {std::string{}, std::string{"\n"}, std::string{"rb\nr"}, std::string{"rx"},
                                    std::string{"r\n\nb"}, std::string(32768, 'r'), std::string{"R"}}) {
        EXPECT_FALSE(parse(text)) << text.substr(0, 20);
    }
    EXPECT_TRUE(parse(std::string(32767, 'r')));
}

TEST(Groups, AreConnectedByNeighboursOfOneColourAndNotAcrossEdgesOrCorners) {
    const Board board = boardOf("rbr .rr rbb");
    EXPECT_EQ(groupSizes(board), (std::vector{1, 0, 1, 1, 3, 2, 3, 3, 2}));  // column by column
    EXPECT_EQ((std::vector{groupSize(board, 0), groupSize(board, 1), groupSize(board, 4)}), (std::vector{1, 0, 3}));
}

}  // namespace
}  // namespace rules
