// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>

namespace rules {

/// Returns the next random number, uniform in [0, 1).
using RandomSource = std::function<float()>;

/// The random generator of the game: SplitMix64 with a conversion to float. Both are implemented here, so that a seed
/// gives the same board with every compiler and standard library.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state(seed) {}

    /// The next number: a multiple of 2^-24 in [0, 1). All these multiples are equally likely.
    float operator()();

  private:
    std::uint64_t state;
};

/// A seed from the clocks. Two calls practically never return the same seed.
std::uint64_t seedFromClock();

}  // namespace rules
