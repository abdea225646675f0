// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <chrono>

namespace mainwindow {

/// The pace at which the balls of a group vanish: one ball in each display refresh, or equal shares of a large group in
/// `mostRefreshes` refreshes.
class RemovalPace {
  public:
    static constexpr std::chrono::microseconds refresh{16'000};
    static constexpr int mostRefreshes = 15;

    /// `group` is the number of balls to remove, at least 1.
    explicit RemovalPace(int group) : groupSize(group), refreshes(std::min(group, mostRefreshes)) {}

    /// Call this function after each removed ball. Returns the pause to make now: zero or `refresh`.
    std::chrono::microseconds nextBall() {
        const int refreshesBefore = refreshes * removed / groupSize;
        ++removed;
        const bool isShareRemoved = refreshes * removed / groupSize > refreshesBefore;
        return isShareRemoved ? refresh : std::chrono::microseconds{};
    }

  private:
    int groupSize;
    int refreshes;
    int removed = 0;
};

}  // namespace mainwindow
