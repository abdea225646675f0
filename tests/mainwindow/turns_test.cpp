// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/turns.h"

#include <gtest/gtest.h>

namespace mainwindow {
namespace {

using enum Command;

TEST(Turns, KeptCommandsRunInOrderAfterTheMoveAndOnesThatAKeptNewGameKeepsAfterThem) {
    std::vector<Command> ran;
    Turns turns([&](Command command) {
        ran.push_back(command);
        if (command == newGame) {
            turns.begin();
            turns.perform(quit);
            turns.perform(help);
            turns.end();
        }
    });
    turns.begin();
    turns.perform(newGame);
    turns.perform(reset);
    EXPECT_TRUE(ran.empty() && turns.isMoving() && !turns.isClosing());
    turns.end();
    EXPECT_EQ(ran, (std::vector{newGame, reset, quit})) << "quitting drops what comes after it";
    turns.begin();
    turns.perform(reset);
    turns.end();
    EXPECT_TRUE(turns.isClosing() && !turns.isMoving() && ran.back() == reset) << "the next move keeps commands too";
}

}  // namespace
}  // namespace mainwindow
