// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The command buttons, and what each command does.

#include "mainwindow/balls.h"

namespace mainwindow {

void balls::ImBTN_Click(int Index) {
    if (Index >= static_cast<int>(Command::newGame) && Index <= static_cast<int>(Command::reset)) {
        turns.perform(static_cast<Command>(Index));
    }
}

void balls::LabBtn_Click(int Index) {
    ImBTN_Click(Index);
}

void balls::run(Command command) {
    switch (command) {
        case Command::newGame:
            startGame();
            break;
        case Command::quit:
            close();
            break;
        case Command::reset:
            resetBestScore();
            break;
        case Command::help:
            openAbout();
            break;
    }
}

}  // namespace mainwindow
