// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/turns.h"

#include <gtest/gtest.h>

namespace mainwindow {
namespace {

using enum Command;
using Requests = std::vector<Request>;

TEST(Turns, KeptRequestsRunInOrderAfterTheMoveAndOnesThatAKeptNewGameKeepsAfterThem) {
    Requests ran;
    Turns turns([&](Request request) {
        ran.push_back(request);
        if (request == Request(newGame)) {
            turns.begin();
            turns.perform(quit);
            turns.perform(help);
            turns.end();
        }
    });
    turns.begin();
    turns.perform(help);
    turns.perform(Press{1});
    turns.perform(newGame);
    turns.perform(Press{2});
    turns.perform(reset);
    EXPECT_TRUE(ran.empty() && turns.isMoving() && !turns.isClosing());
    turns.end();
    EXPECT_EQ(ran, (Requests{Press{1}, newGame, reset, quit})) << "help is last; quitting drops presses and what waits";
    turns.begin();
    turns.perform(reset);
    turns.end();
    EXPECT_TRUE(turns.isClosing() && !turns.isMoving() && ran.back() == Request(reset)) << "the next move keeps, too";
}

TEST(Turns, KeptPressesFollowTheirBallsAndAreEightAtMost) {
    Requests ran;
    Turns turns([&](Request request) { ran.push_back(request); });
    turns.begin();
    for (const auto cell : std::vector<rules::CellIndex>{2, 0, 1, 2, 2, 2, 2, 2, 2, 2}) {
        turns.perform(Press{cell});
    }
    turns.follow({4, rules::noCell, 3});
    turns.end();
    EXPECT_EQ(ran, (Requests{Press{3}, Press{4}, Press{3}, Press{3}, Press{3}, Press{3}, Press{3}}));
}

}  // namespace
}  // namespace mainwindow
