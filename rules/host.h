// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "rules/board.h"

namespace rules {

/// What a move asks of the surroundings it is played in. The calls come in the order in which the player is
/// to see and hear their effects; the game's state already holds what each of them tells.
struct Host {
    virtual ~Host() = default;

    /// Cell i has lost its ball.
    virtual void cellCleared(CellIndex i) = 0;
    /// One ball of the group is gone: time to let the player see it.
    virtual void yield() = 0;
    /// The score has a new value.
    virtual void scoreChanged() = 0;
    /// The status line about the last move has a new text (UTF-8).
    virtual void lastMoveChanged(std::string_view text) = 0;
    /// The status line about the balls left has a new text (UTF-8).
    virtual void remainingChanged(std::string_view text) = 0;
    /// Plays this sound file to its end.
    virtual void playWave(std::string_view file) = 0;
    /// The balls have fallen and the columns closed up: any cell may have changed.
    virtual void boardSettled() = 0;
    /// The game has ended; returns at once.
    virtual void gameEnded() = 0;

  protected:
    Host() = default;
    Host(const Host&) = default;
    Host& operator=(const Host&) = default;
    Host(Host&&) = default;
    Host& operator=(Host&&) = default;
};

}  // namespace rules
