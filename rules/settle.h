// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/board.h"

namespace rules {

/// Lets the balls fall within their columns and closes up empty columns toward the left, in one sweep. The balls of a
/// column keep their order, and so do the columns.
///
///     r.b.      ....
///     ..v.  ->  b...
///     r.j.      rv..
///     ....      rj..
void settle(Board& board);

}  // namespace rules
