// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>

namespace rules {

/// One random number, uniform in [0, 1).
using Draw = std::function<float()>;

/// The game's generator (SplitMix64). Algorithm and distribution are our own, so that a seed means the same
/// board with every compiler and library, for ever.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state(seed) {}

    /// The next number, uniform over the multiples of 2^-24 in [0, 1).
    float operator()();

  private:
    std::uint64_t state;
};

/// A seed taken from the clocks, another one at every call.
std::uint64_t seedFromClock();

}  // namespace rules
