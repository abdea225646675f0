// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// A press on a ball starts a move. A press on an empty cell drags the window.

#include <QCheckBox>

#include "mainwindow/balls.h"
#include "rules/group.h"
#include "rules/move.h"

namespace mainwindow {

void balls::c_MouseDown(rules::CellIndex i, const QMouseEvent& press) {
    highlight(noButton);
    if (game.board[i] == rules::Code::none) {
        Form_MouseDown(press);
    } else {
        play(i);
    }
}

void balls::play(rules::CellIndex i) {
    // A press waits for the end of the current move, but only a ball can be found again then.
    if (game.board[i] != rules::Code::none) {
        turns.perform(Press{i});
    }
}

void balls::playSoon(rules::CellIndex i) {
    // The press is kept at once: later, another ball may be in the cell. The move takes time, so it starts later.
    if (!turns.isMoving()) {
        turns.begin();
        QMetaObject::invokeMethod(
            this, [this] { turns.end(); }, Qt::QueuedConnection);
    }
    play(i);
}

void balls::run(Press press) {
    const int group = rules::groupSize(game.board, press.cell);
    turns.begin();
    pace = RemovalPace(group);
    if (Check1->isChecked() && group > 1) {
        surroundings.sound.warmUp();  // The sound device opens while the balls vanish.
    }
    rules::playMove(game, press.cell, *this);
    turns.end();
}

}  // namespace mainwindow
