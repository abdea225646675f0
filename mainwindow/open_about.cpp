// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The About window replaces the main window on the screen while it is open.

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
    // Taken before hiding, while this window is still on that screen.
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
    // Deleted later, because one of its handlers is running.
    About.release()->deleteLater();
    show();
    raise();
    activateWindow();
}

}  // namespace mainwindow
