// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Updates the best scores and their labels when the score changes or the player resets a best score.

#include "mainwindow/balls.h"
#include "platform/label.h"

namespace mainwindow {

void balls::sc_Change() {
    bestScores.raise(game.Diff, sc->text());
    showBestScores();
    showBestScore(game.Diff);
}

void balls::resetBestScore() {
    bestScores.reset(game.Diff);
    showBestScores();
    showBestScore(game.Diff);
}

void balls::showBestScores() {
    for (int k = 0; platform::Label * label : hsc) {
        label->setText(bestScores.hsc(k++));
    }
}

void balls::showBestScore(int level) {
    Label4->setText(bestScores.hsc(level));
}

}  // namespace mainwindow
