// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// A press on a ball starts a move. A press on an empty cell drags the window.

#include <QCheckBox>

#include "mainwindow/balls.h"
#include "rules/group.h"
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
    const int group = rules::groupSize(game.board, i);
    pace = RemovalPace(group);
    if (Check1->isChecked() && group > 1) {
        surroundings.sound.warmUp();  // The sound device opens while the balls vanish.
    }
    rules::playMove(game, i, *this);
    turns.end();
}

}  // namespace mainwindow
