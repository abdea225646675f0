// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "rules/board.h"

namespace rules {

/// For each cell the number of balls in its group: connected balls of one colour, 1 for a lone ball, 0 for an empty
/// cell.
std::vector<int> groupSizes(const Board& board);

}  // namespace rules
