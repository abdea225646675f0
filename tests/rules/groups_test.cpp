// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/groups.h"

#include <gtest/gtest.h>

#include "tests/rules/pictures.h"

namespace rules {
namespace {

TEST(Groups, AreConnectedByNeighboursOfOneColourAndNotAcrossEdgesOrCorners) {
    const Board board = picture("rbr .rr rbb");
    EXPECT_EQ(groupSizes(board), (std::vector{1, 0, 1, 1, 3, 2, 3, 3, 2})) << "column by column";
    GroupSizes sizes;
    EXPECT_EQ(sizes.at(board, 7), 3);
    EXPECT_EQ(sizes.at(picture("rbr brb rbr"), 7), 1) << "another board";
}

}  // namespace
}  // namespace rules
