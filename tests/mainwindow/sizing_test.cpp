// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/sizing.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "mainwindow/removalpace.h"

namespace mainwindow {
namespace {

TEST(Sizing, RequestIsClampedThenFittedToTheScreen) {
    const std::vector<std::array<BoardSize, 3>> screensRequestsBoards{
        {{{1024, 768}, {60, 50}, {40, 36}}},
        {{{1600, 1200}, {0, 0}, {8, 14}}},
        {{{2880, 5120}, {150, 250}, {133, 246}}},  // more cells than indices
        {{{1, 1}, {25, 25}, {1, 1}}},
    };
    for (const auto& [screen, request, board] : screensRequestsBoards) {
        EXPECT_EQ(fitBoard(request, {screen.NbCol * 15, screen.NbLig * 15, 2670}), board) << screen.NbCol;
    }
}

TEST(RemovalPace, OneRefreshABallAtFirstAndABoundForAll) {
    for (const int balls : {2, 10, 11, 100, 32'767}) {
        RemovalPace pace;
        std::chrono::microseconds total{};
        for (int ball = 1; ball <= balls; ++ball) {
            const auto wait = pace.nextBall();
            if (ball <= 10) {
                EXPECT_EQ(wait, RemovalPace::refresh) << "ball " << ball;
            }
            total += wait;
        }
        EXPECT_LE(total, std::chrono::milliseconds(300)) << balls << " balls";
    }
}

}  // namespace
}  // namespace mainwindow
