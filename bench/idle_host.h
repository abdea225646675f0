// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/host.h"

/// A host that ignores all callbacks of a move.
struct IdleHost : rules::Host {
    void cellCleared(rules::CellIndex) override {}
    void yield() override {}
    void scoreChanged() override {}
    void lastMoveChanged(std::string_view) override {}
    void remainingChanged(std::string_view) override {}
    void PlayWave(std::string_view) override {}
    void boardSettled(const rules::Landings&) override {}
    void gameEnded() override {}
};
