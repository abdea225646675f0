// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "rules/host.h"

/// Lets a move be played and shows nothing of it.
struct IdleHost : rules::Host {
    void cellCleared(rules::CellIndex) override {}
    void yield() override {}
    void scoreChanged() override {}
    void lastMoveChanged(std::string_view) override {}
    void remainingChanged(std::string_view) override {}
    void playWave(std::string_view) override {}
    void boardSettled() override {}
    void gameEnded() override {}
};
