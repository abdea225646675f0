// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <utility>

namespace mainwindow {

/// The pace at which the balls of a group vanish. Each of the first ten balls earns a pause of one display refresh.
/// Each later ball earns less than the ball before. Earned time is saved up until it reaches one refresh. All pauses of
/// a group together take less than 300 ms.
class RemovalPace {
  public:
    static constexpr std::chrono::microseconds refresh{16'000};

    /// Call this function after each removed ball. Returns the pause to make now: zero, or at least `refresh`.
    std::chrono::microseconds nextBall() {
        constexpr int evenBalls = 10;
        constexpr double shrink = 0.89;  // The pauses add up to at most 16 ms × (10 + 0.89 / 0.11) = 290 ms.
        if (++balls > evenBalls) {
            share *= shrink;
        }
        owed += std::chrono::duration_cast<std::chrono::microseconds>(refresh * share);
        return owed >= refresh ? std::exchange(owed, {}) : std::chrono::microseconds{};
    }

  private:
    int balls = 0;
    double share = 1;
    std::chrono::microseconds owed{};
};

}  // namespace mainwindow
