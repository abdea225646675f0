// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "rules/points.h"
#include "rules/sound_choice.h"
#include "rules/status_lines.h"

namespace rules {
namespace {

TEST(Outcome, PointsAndSoundsByGroupSize) {
    struct Row {
        int balls;
        std::int64_t points;
        const char* sound;
    };
    const std::vector<Row> table{
        {2, 4, "son2.WAV"},       {3, 8, "son5.WAV"},
        {4, 13, "son5.WAV"},      {5, 20, "son5.WAV"},
        {6, 28, "son5.WAV"},      {10, 73, "son5.WAV"},
        {11, 88, "son10.WAV"},    {20, 280, "son10.WAV"},
        {50, 1700, "son10.WAV"},  {51, 1768, "son50.WAV"},
        {80, 4320, "son50.WAV"},  {81, 4428, "son80.WAV"},
        {100, 6733, "son80.WAV"}, {32767, 715806037, "son80.WAV"},
    };
    for (const Row& row : table) {
        EXPECT_EQ(pointsFor(row.balls), row.points) << row.balls << " balls";
        EXPECT_EQ(soundFor(row.balls), row.sound) << row.balls << " balls";
    }
}

}  // namespace
}  // namespace rules
