// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "animation/frame_pace.h"

#include <gtest/gtest.h>

namespace animation {
namespace {

using namespace std::chrono_literals;

TEST(Pace, PassesAre240ASecondHoweverTheTimerFires) {
    for (const auto interval : {1ms, 7ms, 16ms, 17ms, 33ms, 49ms}) {
        const FramePace::Time start{};
        FramePace pace(start);
        int passes = 0;
        for (auto elapsed = 0ms; elapsed <= 10s; elapsed += interval) {
            passes += pace.passesDue(start + elapsed);
        }
        EXPECT_NEAR(passes, 2400, 240 * 0.05) << interval.count() << " ms";
    }
}

TEST(Pace, FramesAreSixtyASecondAndFourPassesEach) {
    FramePace::Time now{};
    FramePace pace(now);
    for (int frame = 0; frame < 60; ++frame) {
        now = pace.nextFrame();
        EXPECT_EQ(pace.passesDue(now), 4);
    }
    EXPECT_NEAR(std::chrono::duration<double>(now.time_since_epoch()).count(), 1, 0.0001);
}

TEST(Pace, LongPauseIsNotMadeUpFor) {
    FramePace::Time now{};
    FramePace pace(now);
    now += 1h;
    EXPECT_EQ(pace.passesDue(now), 12);
    EXPECT_EQ(pace.passesDue(now), 0);
    EXPECT_EQ(pace.passesDue(now += 10ms), 2);
}

}  // namespace
}  // namespace animation
