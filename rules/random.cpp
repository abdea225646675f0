// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/random.h"

#include <chrono>

namespace rules {

float Random::operator()() {
    state += 0x9E3779B97F4A7C15U;
    std::uint64_t bits = state;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    bits ^= bits >> 31U;
    return static_cast<float>(bits >> 40U) * 0x1p-24F;
}

std::uint64_t seedFromClock() {
    // The wall clock makes the seeds of two runs differ. The steady clock makes the seeds within one run differ, even
    // if somebody sets the wall clock back.
    const auto wall = std::chrono::system_clock::now().time_since_epoch().count();
    const auto steady = std::chrono::steady_clock::now().time_since_epoch().count();
    return (static_cast<std::uint64_t>(wall) << 20U) ^ static_cast<std::uint64_t>(steady);
}

}  // namespace rules
