// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/removal_pace.h"

#include <gtest/gtest.h>

namespace mainwindow {
namespace {

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
