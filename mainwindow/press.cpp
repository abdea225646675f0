// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// A press on a cell of the board starts a move.

#include "mainwindow/balls.h"
#include "rules/move.h"

namespace mainwindow {

void balls::c_MouseDown(rules::CellIndex i, const QMouseEvent& press) {
    if (turns.isMoving()) {
        return;
    }
    highlight(noButton);
    if (game.board[i] == rules::Code::none) {
        Form_MouseDown(press);
    } else {
        play(i);
    }
}

void balls::play(rules::CellIndex i) {
    if (turns.isMoving()) {
        return;
    }
    turns.begin();
    pace = {};
    rules::playMove(game, i, *this);
    turns.end();
}

}  // namespace mainwindow
