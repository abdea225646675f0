// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "rules/board.h"

namespace rules {

/// The callbacks of a move. They come in the order in which the player sees and hears their effects; the game's state
/// is already changed when a callback reports a change.
struct Host {
    virtual ~Host() = default;

    /// Cell i has lost its ball.
    virtual void cellCleared(CellIndex i) = 0;
    /// Called after each ball that is removed, so that the player can see it vanish.
    virtual void yield() = 0;
    /// The score has changed.
    virtual void scoreChanged() = 0;
    /// The status line about the last move has a new text (UTF-8).
    virtual void lastMoveChanged(std::string_view text) = 0;
    /// The status line about the balls left has a new text (UTF-8).
    virtual void remainingChanged(std::string_view text) = 0;
    /// Plays this sound file to its end.
    virtual void PlayWave(std::string_view file) = 0;
    /// The balls have fallen and the columns have closed up: any cell may have changed.
    virtual void boardSettled() = 0;
    /// The game has ended. Returns at once.
    virtual void gameEnded() = 0;

  protected:
    Host() = default;
    Host(const Host&) = default;
    Host& operator=(const Host&) = default;
    Host(Host&&) = default;
    Host& operator=(Host&&) = default;
};

}  // namespace rules
