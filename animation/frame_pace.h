// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace animation {

/// Paces an animation by the wall clock: 240 passes a second, drawn four at a time.
class FramePace {
  public:
    using Time = std::chrono::steady_clock::time_point;

    explicit FramePace(Time start) : done(start) {}

    /// The number of passes that are due since the last call, at most three frames: after a longer pause the animation
    /// does not catch up.
    int passesDue(Time now) {
        constexpr int most = 3 * passesPerFrame;
        const auto due = (now - done) / pass;
        done = due > most ? now : done + due * pass;
        return due > most ? most : static_cast<int>(due);
    }

    /// When the next frame is due.
    Time nextFrame() const { return done + passesPerFrame * pass; }

  private:
    static constexpr int passesPerFrame = 4;
    static constexpr auto pass = std::chrono::nanoseconds(std::chrono::seconds(1)) / 240;

    Time done;  // all passes until then have been reported as due
};

}  // namespace animation
