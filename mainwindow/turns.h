// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <variant>

#include "rules/settle.h"

namespace mainwindow {

/// The commands of the player. The values of the first three are the indices of their buttons.
enum class Command { newGame = 0, quit = 1, reset = 2, help };

/// A press on a ball.
struct Press {
    rules::CellIndex cell;  ///< the cell in which the ball is now
    bool operator==(const Press&) const = default;
};

/// What the player can ask for while a move is played.
using Request = std::variant<Command, Press>;

/// Makes requests wait until the current move has ended. In this class, starting a new game is a move as well.
class Turns {
  public:
    /// At most this number of presses waits. Further presses are dropped.
    static constexpr int mostPresses = 8;

    /// `run` carries out a request.
    explicit Turns(std::function<void(Request)> run) : carryOut(std::move(run)) {}

    /// Whether a move is going on.
    bool isMoving() const { return moving; }
    /// Whether the quit command was given during a move. The rest of the move then has no pauses and no sound.
    bool isClosing() const { return closing; }

    /// Begins a move. Call it only if isMoving() is false.
    void begin() { moving = true; }
    /// Ends the move and carries out the requests that waited for its end, in the order in which they were made. The
    /// help window hides the board, so it opens after the other requests. If the player has asked to quit, the presses
    /// are dropped.
    void end();

    /// Carries out a request at once, or at the end of the current move if there is one. When the quit command runs, it
    /// drops all requests that still wait.
    void perform(Request request);

    /// Call it when balls have gone to other cells: the presses that wait follow their balls. A press whose ball is no
    /// longer on the board is dropped.
    void follow(const rules::Landings& landings);
    /// Drops the presses that wait. Call it when their board is no longer played.
    void dropPresses();

  private:
    void run(Request request);

    std::function<void(Request)> carryOut;
    bool moving = false;
    bool isRunningKept = false;
    bool closing = false;
    std::deque<Request> kept;
};

}  // namespace mainwindow
