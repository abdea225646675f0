// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "rules/game.h"
#include "rules/host.h"

namespace rules {

/// A host that writes down, as text, what a move asks of it.
struct Recorder : Host {
    explicit Recorder(const Game& recorded) : game(recorded) {}

    const Game& game;
    std::string events;
    std::vector<CellIndex> removed;

    void cellCleared(CellIndex i) override {
        removed.push_back(i);
        events += std::to_string(i);
    }
    void yield() override { events += " yield "; }
    void scoreChanged() override { events += "[" + std::to_string(game.score) + "] "; }
    void lastMoveChanged(std::string_view text) override { events.append(text) += ' '; }
    void remainingChanged(std::string_view text) override { events.append(text); }
    void PlayWave(std::string_view file) override { events.append(file) += ' '; }
    void boardSettled(const Landings&) override { events += " settled "; }
    void gameEnded() override { events += "ended"; }
};

}  // namespace rules
