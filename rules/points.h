// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace rules {

/// The points for a group of n balls, 2 or more: 2n(n+1)/3, rounded down. No group is large enough to overflow 64 bits.
constexpr std::int64_t pointsFor(std::int64_t n) {
    return 2 * n * (n + 1) / 3;
}

}  // namespace rules
