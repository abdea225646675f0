// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The command buttons, and the order between them and the moves.

#include <utility>

#include "mainwindow/balls.h"

namespace mainwindow {

void balls::ImBTN_Click(int Index) {
    if (Index >= newGame && Index <= reset) {
        perform(static_cast<Command>(Index));
    }
}

void balls::LabBtn_Click(int Index) {
    ImBTN_Click(Index);
}

// One move or new game at a time: inside its yields a press is dropped and a command waits for its end.
void balls::exclusively(const std::function<void()>& sequence) {
    moving = true;
    sequence();
    moving = false;
    runKept();
}

void balls::runKept() {
    // A kept new game comes through here as well; the commands behind it wait for its end.
    if (std::exchange(running, true)) {
        return;
    }
    while (!kept.empty()) {
        const Command command = kept.front();
        kept.pop_front();
        run(command);
    }
    running = false;
}

void balls::perform(Command command) {
    if (moving) {
        keep(command);
    } else {
        run(command);
    }
}

void balls::keep(Command command) {
    closing = closing || command == quit;
    kept.push_back(command);
}

void balls::run(Command command) {
    switch (command) {
        case newGame:
            startGame();
            break;
        case quit:
            kept.clear();
            close();
            break;
        case reset:
            resetBestScore();
            break;
        case help:
            openAbout();
            break;
    }
}

}  // namespace mainwindow
