// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/turns.h"

#include <utility>

namespace mainwindow {

void Turns::end() {
    moving = false;
    // A kept command may start a new game, which calls end() again. Only the outer call runs the kept commands.
    if (std::exchange(isRunningKept, true)) {
        return;
    }
    while (!kept.empty()) {
        const Command command = kept.front();
        kept.pop_front();
        run(command);
    }
    isRunningKept = false;
}

void Turns::perform(Command command) {
    if (moving) {
        closing = closing || command == Command::quit;
        kept.push_back(command);
    } else {
        run(command);
    }
}

void Turns::run(Command command) {
    if (command == Command::quit) {
        kept.clear();
    }
    carryOut(command);
}

}  // namespace mainwindow
