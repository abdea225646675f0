// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/outcome.h"

namespace rules {

std::int64_t pointsFor(int balls) {
    const std::int64_t n = balls;
    return 2 * n * (n + 1) / 3;
}

std::string_view soundFor(int balls) {
    if (balls < 3) {
        return "son2.WAV";
    }
    if (balls <= 10) {
        return "son5.WAV";
    }
    if (balls <= 50) {
        return "son10.WAV";
    }
    if (balls <= 80) {
        return "son50.WAV";
    }
    return "son80.WAV";
}

std::string lastMoveText(int balls) {
    return std::to_string(balls) + " balles crevées (" + std::to_string(pointsFor(balls)) + " points.)";
}

std::string remainingText(int Total, int NBBoules) {
    return "Il reste " + std::to_string(Total) + " balles sur " + std::to_string(NBBoules) + ".";
}

}  // namespace rules
