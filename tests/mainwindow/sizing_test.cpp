// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/sizing.h"

#include <string>

#include <gtest/gtest.h>

#include "mainwindow/removalpace.h"

namespace mainwindow {
namespace {

TEST(Sizing, NumberAtTheStartOfAnyText) {
    struct Row {
        std::u16string text;
        int number;
    };
    const std::vector<Row> table{
        {u"25", 25},
        {u"  25", 25},
        {u"", 0},
        {u"x25", 0},
        {u"25x30", 25},
        {u"10.9", 10},
        {u".9", 0},
        {u"-5", -5},
        {u"--5", 0},
        {u"1e3", 1},
        {u"0x20", 0},
        {u"99999999999999999999", 1'000'000},
        {u"\u0663\u0664", 0},  // digits of another alphabet
        {u"\uFF12\uFF15", 0},  // full-width digits
        {std::u16string(10'000, u'7'), 1'000'000},
        {std::u16string(10'000, u' ') + u"9", 9},
    };
    for (const Row& row : table) {
        EXPECT_EQ(leadingNumber(row.text), row.number) << std::string(row.text.begin(), row.text.end()).substr(0, 30);
    }
}

TEST(Sizing, RequestIsClampedThenFittedToTheScreen) {
    struct Row {
        const char* what;
        int screenWidth, screenHeight;  // pixels
        BoardSize request, expected;
    };
    constexpr Room exact{25 * 300 + 600 + 2670, 20 * 300 + 600, 2670};
    const std::vector<Row> table{
        {"as asked", 1024, 768, {25, 20}, {25, 20}},
        {"too large for the screen", 1024, 768, {60, 50}, {40, 36}},
        {"beyond the bounds", 1600, 1200, {5000, 5000}, {69, 58}},
        {"below the bounds", 1600, 1200, {0, 0}, {8, 14}},
        {"more cells than indices, columns first", 5120, 2880, {1000, 1000}, {230, 142}},
        {"more cells than indices, rows first", 2880, 5120, {150, 250}, {133, 246}},
        {"more cells than indices, a square", 16'000, 16'000, {182, 182}, {181, 181}},
        {"a screen too small for the minimum", 300, 300, {25, 25}, {4, 13}},
        {"a screen too small for a cell", 1, 1, {25, 25}, {1, 1}},
    };
    for (const Row& row : table) {
        EXPECT_EQ(fitBoard(row.request, {row.screenWidth * 15, row.screenHeight * 15, 2670}), row.expected) << row.what;
    }
    EXPECT_EQ(fitBoard({25, 20}, exact), (BoardSize{25, 20})) << "an exact fit is one";
    EXPECT_EQ(fitBoard({25, 20}, {exact.screenWidth - 1, exact.screenHeight - 1, 2670}), (BoardSize{24, 19}));
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
