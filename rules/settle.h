// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/board.h"

namespace rules {

/// Lets the balls fall within their columns, and closes up empty columns toward the left. The order of the balls in a
/// column stays, and so does the order of the columns.
///
///     r.b.      ....
///     ..v.  ->  .b..
///     r.j.      rv..
///     ....      rj..
void settle(Board& board);

}  // namespace rules
