// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// A press on the board, and what its move shows and plays.

#include "rules/move.h"

#include <utility>

#include "mainwindow/balls.h"
#include "mainwindow/boardgeometry.h"
#include "mainwindow/boardtable.h"
#include "platform/accessible.h"
#include "platform/label.h"
#include "platform/yield.h"

namespace mainwindow {
namespace {

QString toText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

void balls::c_MouseDown(rules::CellIndex i, const QMouseEvent& press) {
    if (moving) {
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
    if (moving) {
        return;
    }
    exclusively([this, i] {
        pace = {};
        if (rules::isGroup(game.board, i)) {
            warmUpSound();  // the device opens while the balls vanish
        }
        rules::playMove(game, i, *this);
    });
}

void balls::cellCleared(rules::CellIndex i) {
    c.show(game.board, i);
    // Of very many cells one large area is painted sooner than so many small ones.
    constexpr int manyAreas = 100;
    cleared += cellArea(game.board, i);
    if (cleared.rectCount() > manyAreas) {
        cleared = cleared.boundingRect();
    }
}

void balls::yield() {
    const auto wait = closing ? std::chrono::microseconds{} : pace.nextBall();
    if (wait.count() == 0) {
        platform::yield();
    } else {
        paintCleared();
        surroundings.pause(wait);
    }
}

void balls::paintCleared() {
    update(std::exchange(cleared, {}));
}

void balls::scoreChanged() {
    sc->setText(QString::number(game.score));
    sc_Change();
}

void balls::lastMoveChanged(std::string_view text) {
    l1[0]->setText(toText(text));
    platform::announce(*l1[0]);
}

void balls::remainingChanged(std::string_view text) {
    l1[3]->setText(toText(text));
    platform::announce(*l1[3]);
}

void balls::playWave(std::string_view file) {
    // The holes show while the sound plays, and what the player did meanwhile is over before a panel can
    // open.
    paintCleared();
    platform::yield();
    PlayWave(file);
    platform::yield();
}

void balls::boardSettled() {
    c.showAll(game.board);
    update();
    tellChanges(*cursor);
}

}  // namespace mainwindow
