// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "animation/bounce.h"

#include <gtest/gtest.h>

namespace animation {
namespace {

constexpr int W = 3000;
constexpr int H = 2000;

TEST(Bounce, BallTurnsOnePassAfterItHasCrossedAnEdge) {
    struct Row {
        const char* what;
        Ball before, after, next;
    };
    const std::vector<Row> table{
        {"in the open", {500, 600, 1, -1}, {510, 590, 1, -1}, {520, 580, 1, -1}},
        {"at the left edge", {0, 600, -1, 1}, {-10, 610, -1, 1}, {0, 620, 1, 1}},
        {"at the right edge", {W - 300, 600, 1, 1}, {W - 290, 610, 1, 1}, {W - 300, 620, -1, 1}},
        {"at the top", {500, 0, 1, -1}, {510, -10, 1, -1}, {520, 0, 1, 1}},
        {"at the bottom", {500, H - 300, 1, 1}, {510, H - 290, 1, 1}, {520, H - 300, 1, -1}},
        {"in a corner", {W - 299, -1, 1, -1}, {W - 309, 9, -1, 1}, {W - 319, 19, -1, 1}},
    };
    for (const Row& row : table) {
        Balls balls{};
        balls.fill(row.before);
        for (const Ball& expected : {row.after, row.next}) {
            pass(balls, W, H);
            EXPECT_EQ(balls.front(), expected) << row.what;
            EXPECT_EQ(balls.back(), expected) << row.what;
        }
    }
}

TEST(Bounce, BallNeverLeavesEvenAFieldSmallerThanItself) {
    Balls balls = scatter(200, 100, [] { return 0.999; });
    for (int i = 0; i < 1000; ++i) {
        pass(balls, 200, 100);
        EXPECT_LE(std::abs(balls[0].PosX) + std::abs(balls[0].PosY), 400);
    }
}

TEST(Bounce, ScatterTakesFourDrawsABallInTheirOrder) {
    int draws = 0;
    const std::array sequence{0.489, 0.49, 0.5, 0.25};  // the last draw that means -1, the first that means +1
    const Balls balls = scatter(315, 310, [&] { return sequence[draws++ % 4]; });
    EXPECT_EQ(draws, 24);
    for (const Ball& ball : balls) {
        EXPECT_EQ(ball, (Ball{8, 2, -1, 1})) << "a half goes to the even neighbour";
    }
}

}  // namespace
}  // namespace animation
