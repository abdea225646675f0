// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "rules/group.h"
#include "rules/move.h"
#include "tests/rules/plain.h"

namespace rules {

/// Writes down what a move tells the window.
struct Recorder : Host {
    explicit Recorder(const Game& recorded) : game(recorded) {}

    const Game& game;
    std::string events;
    std::vector<CellIndex> removed;
    Landings landings;

    void cellCleared(CellIndex i) override {
        removed.push_back(i);
        events += std::to_string(i);
    }
    void yield() override { events += " yield "; }
    void scoreChanged() override { events += "[" + std::to_string(game.score) + "] "; }
    void lastMoveChanged(std::string_view text) override { events.append(text) += ' '; }
    void remainingChanged(std::string_view text) override { events.append(text); }
    void PlayWave(std::string_view file) override { events.append(file) += ' '; }
    void boardSettled(const Landings& places) override {
        landings = places;
        events += " settled ";
    }
    void gameEnded() override { events += "ended"; }
};

/// Presses cell i, which need not be on the board.
inline plain::Outcome press(Game& game, int i) {
    const int size = game.board.contains(i) ? groupSizes(game.board)[i] : 0;
    Recorder host(game);
    playMove(game, i, host);
    return {size, host.removed, host.landings, game.board};
}

}  // namespace rules
