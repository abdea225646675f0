// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>

namespace rules {

/// Returns the next random number, uniform in [0, 1).
using RandomSource = std::function<float()>;

/// The game's generator (SplitMix64). Algorithm and distribution are our own, so that a seed gives the same board with
/// every compiler and library.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state(seed) {}

    /// The next number, uniform over the multiples of 2^-24 in [0, 1).
    float operator()();

  private:
    std::uint64_t state;
};

/// A seed from the clocks, different at every call.
std::uint64_t seedFromClock();

}  // namespace rules
