// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <utility>

namespace mainwindow {

/// The pace at which the balls of a group vanish: one display refresh a ball for the first ten, then ever
/// less, and never more than 300 ms in all.
class RemovalPace {
  public:
    static constexpr std::chrono::microseconds refresh{16'000};

    /// One more ball is gone. Returns how long to show the board as it now is: nothing, or a refresh and
    /// more.
    std::chrono::microseconds nextBall() {
        constexpr int evenBalls = 10;
        constexpr double shrink = 0.89;  // 16 ms × (10 + 0.89 / 0.11) stays below 300 ms
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
