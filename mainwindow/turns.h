// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <utility>

namespace mainwindow {

/// The commands of the player. The values of the first three are the indices of their buttons.
enum class Command { newGame = 0, quit = 1, reset = 2, help };

/// Makes commands wait until the current move has ended. In this class, starting a new game is a move as well.
class Turns {
  public:
    /// `run` carries out a command.
    explicit Turns(std::function<void(Command)> run) : carryOut(std::move(run)) {}

    /// Whether a move is going on.
    bool isMoving() const { return moving; }
    /// Whether the quit command was given during a move. The rest of the move then has no pauses and no sound.
    bool isClosing() const { return closing; }

    /// Begins a move. Call it only if isMoving() is false.
    void begin() { moving = true; }
    /// Ends the move and runs the commands that waited for its end, in the order in which they were given.
    void end();

    /// Runs a command at once, or at the end of the current move if there is one. When the quit command runs, it drops
    /// all commands that still wait.
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
