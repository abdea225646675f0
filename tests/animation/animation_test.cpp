// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "animation/bounce.h"
#include "animation/frame_pace.h"

namespace animation {
namespace {

using namespace std::chrono_literals;

/// Where a ball is that started just outside the left or upper edge, if it goes to and fro between this place and the
/// first place beyond the opposite edge.
int placeAfter(int passes, int start, int room) {
    const int there = std::max((room - start) / 10 + 1, 1);
    return start + 10 * (there - std::abs(passes % (2 * there) - there));
}

TEST(Bounce, BallTurnsOnePassAfterItHasCrossedAnEdge) {
    for (const int room : {50, 0, -100}) {  // the last field is smaller than the ball
        for (int start = -10; start < 0; ++start) {
            Balls balls{};
            balls.fill({start, start, -1, -1});
            for (int passes = 1; passes < 100; ++passes) {
                pass(balls, side + room, side + room + 25);
                for (const Ball& ball : balls) {
                    EXPECT_EQ(ball.PosX, placeAfter(passes, start, room));
                    EXPECT_EQ(ball.PosY, placeAfter(passes, start, room + 25));
                }
            }
        }
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

TEST(Pace, FrameComesAfterFourPassesWhichIsSixtyTimesASecond) {
    const FramePace::Time start{};
    FramePace pace(start);
    EXPECT_NEAR(std::chrono::duration<double>(pace.nextFrame() - start).count(), 1.0 / 60, 1e-6);
    EXPECT_EQ(pace.passesDue(pace.nextFrame()), 4);
}

TEST(Pace, LongPauseIsNotMadeUpFor) {
    FramePace::Time now{};
    FramePace pace(now);
    EXPECT_EQ(pace.passesDue(now += 1h), 12);
    EXPECT_EQ(pace.passesDue(now), 0);
    EXPECT_EQ(pace.passesDue(now += 10ms), 2);
}

}  // namespace
}  // namespace animation
