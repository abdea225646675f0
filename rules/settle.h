// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/board.h"

namespace rules {

/// Lets the balls fall within their columns and closes up empty columns toward the left, in one sweep. The
/// order of the balls in a column and of the columns that hold balls stays.
///
///     r.b.      ....
///     ..v.  ->  b...
///     r.j.      rv..
///     ....      rj..
void settle(Board& board);

}  // namespace rules
