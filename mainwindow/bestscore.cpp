// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The best scores: their rule, their reset, and the labels that show them.

#include "mainwindow/balls.h"
#include "platform/label.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

void balls::sc_Change() {
    bestScores.sc_Change(game.Diff, sc->text());
    showBestScore();
}

void balls::resetBestScore() {
    bestScores.reset(game.Diff);
    showBestScore();
}

void balls::showTable() {
    for (int k = 0; platform::Label * label : hsc) {
        label->setText(bestScores.hsc(k++));
    }
}

void balls::showBestScore() {
    showTable();
    Label4->setText(bestScores.hsc(game.Diff));
}

}  // namespace mainwindow
