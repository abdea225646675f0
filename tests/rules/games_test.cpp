// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/rules/games.h"

#include <gtest/gtest.h>

namespace rules {
namespace {

TEST(Games, GoAsByThePlainRulesFromThousandsOfSeeds) {
    for (int seed = 0; seed < 4000; ++seed) {
        const auto played = [=](bool isPlain) {
            return playedGame(isPlain, seed, 1 + seed % 13, 1 + seed % 11, seed % 5);
        };
        ASSERT_EQ(played(false), played(true));
    }
}

}  // namespace
}  // namespace rules
