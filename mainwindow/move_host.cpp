// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Shows a move to the player and plays the sound of the move.

#include <QCheckBox>

#include "mainwindow/balls.h"
#include "mainwindow/board/board_widget.h"
#include "platform/label.h"
#include "platform/yield.h"

namespace mainwindow {
namespace {

QString textOf(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

void balls::cellCleared(rules::CellIndex i) {
    c->markChanged(i);
}

void balls::yield() {
    const auto wait = turns.isClosing() ? std::chrono::microseconds{} : pace.nextBall();
    if (wait.count() == 0) {
        platform::yield();
    } else {
        c->paintChanges();
        surroundings.pause(wait);
    }
}

void balls::scoreChanged() {
    sc->setText(QString::number(game.score));
    sc_Change();
}

void balls::lastMoveChanged(std::string_view text) {
    l1[0]->setText(textOf(text));
}

void balls::remainingChanged(std::string_view text) {
    l1[3]->setText(textOf(text));
}

void balls::PlayWave(std::string_view file) {
    // The empty cells must be on the screen while the sound plays.
    c->paintChanges();
    platform::yield();
    if (Check1->isChecked() && !turns.isClosing()) {
        surroundings.sound.play(std::string(file));
    }
    // Input may have arrived during the sound. Handle it now, on the board that the player saw: later, another ball may
    // be in the pressed cell, and a key could close the end-of-game panel.
    platform::yield();
}

void balls::boardSettled(const rules::Landings& landings) {
    turns.follow(landings);
    c->showBoard();
    // The end of a game may double the score, so gameEnded() announces the last move.
    if (game.Total > 1) {
        announceStatus();
    }
}

}  // namespace mainwindow
