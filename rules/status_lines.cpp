// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/status_lines.h"

#include "rules/points.h"

namespace rules {

std::string lastMoveText(int balls) {
    return std::to_string(balls) + " balles crevées (" + std::to_string(pointsFor(balls)) + " points.)";
}

std::string remainingText(int Total, int NBBoules) {
    return "Il reste " + std::to_string(Total) + " balles sur " + std::to_string(NBBoules) + ".";
}

}  // namespace rules
