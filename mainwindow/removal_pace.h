// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <utility>

namespace mainwindow {

/// The pace at which the balls of a group vanish: each of the first ten takes a display refresh, each later one less
/// than the one before. All balls together take less than 300 ms.
class RemovalPace {
  public:
    static constexpr std::chrono::microseconds refresh{16'000};

    /// Whether no ball has been removed yet.
    bool isNew() const { return balls == 0; }

    /// Call it after each removed ball. Returns how long to pause: zero, or at least one refresh.
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
