// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace rules {

/// The status line about the last move, for the number of balls it removed: "5 balles crevées (20 points.)".
std::string lastMoveText(int balls);

/// The status line about the balls left: "Il reste 495 balles sur 500."
std::string remainingText(int Total, int NBBoules);

}  // namespace rules
