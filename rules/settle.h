// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "rules/board.h"

namespace rules {

/// Where each ball has gone, by the cell in which it was. An element is the cell in which the ball is now, or noCell if
/// the old cell had no ball.
using Landings = std::vector<CellIndex>;

inline constexpr CellIndex noCell = -1;

/// Lets the balls fall within their columns, and closes up empty columns toward the left. The order of the balls in a
/// column stays, and so does the order of the columns. Returns where each ball has gone.
///
///     r.b.      ....
///     ..v.  ->  .b..
///     r.j.      rv..
///     ....      rj..
Landings settle(Board& board);

}  // namespace rules
