// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "rules/settle.h"

namespace rules {

/// The callbacks of a move. The rules call them in the order in which the player sees and hears the effects. When a
/// callback reports a change, the state of the game is already changed.
struct Host {
    virtual ~Host() = default;

    /// Cell i has lost its ball.
    virtual void cellCleared(CellIndex i) = 0;
    /// Called after the removal of each ball, so that the host can show the empty cell before the next removal.
    virtual void yield() = 0;
    /// The score has changed.
    virtual void scoreChanged() = 0;
    /// The status line about the last move has a new text (UTF-8).
    virtual void lastMoveChanged(std::string_view text) = 0;
    /// The status line about the balls left has a new text (UTF-8).
    virtual void remainingChanged(std::string_view text) = 0;
    /// Plays the sound file of this name and returns after the end of the sound.
    virtual void PlayWave(std::string_view file) = 0;
    /// The balls have fallen and the columns have closed up: any cell may have changed. `landings` says where each ball
    /// has gone.
    virtual void boardSettled(const Landings& landings) = 0;
    /// The game has ended. The host returns without waiting for the player.
    virtual void gameEnded() = 0;

  protected:
    Host() = default;
    Host(const Host&) = default;
    Host& operator=(const Host&) = default;
    Host(Host&&) = default;
    Host& operator=(Host&&) = default;
};

}  // namespace rules
