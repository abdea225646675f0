// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace rules {

/// The status line after a move that removed `balls` balls: "5 balles crevées (20 points.)".
std::string lastMoveText(int balls);

/// The status line about the balls left: "Il reste 495 balles sur 500."
std::string remainingText(int Total, int NBBoules);

}  // namespace rules
