// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/removal_pace.h"

#include <gtest/gtest.h>

namespace mainwindow {
namespace {

TEST(RemovalPace, RefreshesTakeEqualSharesOfTheGroupWithinABound) {
    for (const int group : {2, 10, 12, 16, 92, 32'767}) {
        RemovalPace pace(group);
        std::vector<int> shares{0};
        for (int ball = 1; ball <= group; ++ball) {
            ++shares.back();
            if (pace.nextBall() != std::chrono::microseconds{}) {
                shares.push_back(0);
            }
        }
        EXPECT_EQ(shares.back(), 0) << "the last balls are shown, too";
        shares.pop_back();
        const auto [least, most] = std::ranges::minmax(shares);
        EXPECT_LE(most - least, 1) << group << " balls";
        EXPECT_EQ(std::ssize(shares), std::min(group, 15)) << "refreshes, at most 240 ms";
    }
}

}  // namespace
}  // namespace mainwindow
