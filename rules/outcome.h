// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace rules {

/// The points for a group of this many balls (2 or more): 2n(n+1)/3 without its fraction, exact for every
/// group.
std::int64_t pointsFor(int balls);

/// The name of the sound file for a group of this many balls.
std::string_view soundFor(int balls);

/// The status line about the last move: "5 balles crevées (20 points.)".
std::string lastMoveText(int balls);

/// The status line about the balls left: "Il reste 495 balles sur 500."
std::string remainingText(int Total, int NBBoules);

}  // namespace rules
