// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// While the About window is open, the main window is hidden.

#include "about/about.h"
#include "mainwindow/balls.h"
#include "rules/random.h"

namespace mainwindow {

void balls::Image1_MouseDown() {
    turns.perform(Command::help);
}

void balls::openAbout() {
    if (About != nullptr || turns.isClosing()) {
        return;
    }
    // Ask for the screen before hide(), while the main window is still on it.
    const platform::Box screen = surroundings.screen(*this);
    hide();
    About =
        std::make_unique<about::About>(screen, rules::Random(surroundings.animationSeed()), [this] { closeAbout(); });
    About->show();
    About->activateWindow();
}

void balls::closeAbout() {
    if (About == nullptr) {
        return;
    }
    // A handler of the About window is running now, so the window must be deleted later.
    About.release()->deleteLater();
    show();
    raise();
    activateWindow();
}

}  // namespace mainwindow
