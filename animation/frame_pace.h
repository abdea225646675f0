// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace animation {

/// Paces an animation by the steady clock: 240 passes a second, and one frame after every four passes.
class FramePace {
  public:
    using Time = std::chrono::steady_clock::time_point;

    explicit FramePace(Time start) : countedUntil(start) {}

    /// The number of passes that have become due since the last call, at most 12 (three frames). Further passes are
    /// dropped: after a pause, the animation does not catch up.
    int passesDue(Time now) {
        constexpr int most = 3 * passesPerFrame;
        const auto due = (now - countedUntil) / passTime;
        countedUntil = due > most ? now : countedUntil + due * passTime;
        return due > most ? most : static_cast<int>(due);
    }

    /// The time at which the next frame is due.
    Time nextFrame() const { return countedUntil + passesPerFrame * passTime; }

  private:
    static constexpr int passesPerFrame = 4;
    static constexpr auto passTime = std::chrono::nanoseconds(std::chrono::seconds(1)) / 240;

    Time countedUntil;  // passesDue() has counted or dropped all passes up to this time
};

}  // namespace animation
