// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>

namespace animation {

/// Returns the next random number, uniform in [0, 1).
using RandomSource = std::function<double()>;

/// The side of a ball, in twips.
inline constexpr int side = 300;

/// A moving ball. PosX and PosY are the position of its top left corner in the field, in twips. DirX and DirY are its
/// direction along each axis, -1 or +1.
struct Ball {
    int PosX;
    int PosY;
    int DirX;
    int DirY;
    bool operator==(const Ball&) const = default;
};

using Balls = std::array<Ball, 6>;

/// Puts the balls at random places in a field of W by H twips and gives them random directions. Takes four random
/// numbers for each ball, in the order DirX, DirY, PosX, PosY.
Balls scatter(int W, int H, const RandomSource& random);

/// Moves every ball by one pass, 10 twips along each axis. A ball that has crossed an edge of the field turns back in
/// the next pass, so a ball may be up to 10 twips outside the field.
void pass(Balls& balls, int W, int H);

}  // namespace animation
