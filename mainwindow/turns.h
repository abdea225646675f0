// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace mainwindow {

/// The commands of the player. The first three have the indices of their buttons.
enum class Command { newGame = 0, quit = 1, reset = 2, help };

/// Makes moves, new games and commands take turns: during a move or a new game, commands are kept for its end.
class Turns {
  public:
    /// `run` carries a command out.
    explicit Turns(std::function<void(Command)> run) : carryOut(std::move(run)) {}

    /// Whether a move or a new game is under way.
    bool isMoving() const { return moving; }
    /// Whether the player asked to quit during the current move: it then skips its pace and its sound.
    bool isClosing() const { return closing; }

    /// Begins a move or a new game. Call it only if none is under way.
    void begin() { moving = true; }
    /// Ends the move or new game and runs the kept commands, in order.
    void end();

    /// Runs a command now, or keeps it for the end of the current move or new game. Quitting drops the commands after
    /// it.
    void perform(Command command);

  private:
    void run(Command command);

    std::function<void(Command)> carryOut;
    bool moving = false;
    bool isRunningKept = false;
    bool closing = false;
    std::deque<Command> kept;
};

}  // namespace mainwindow
