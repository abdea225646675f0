// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The About window, which takes the place of the main window while it is open.

#include "about/about.h"
#include "mainwindow/balls.h"
#include "rules/random.h"

namespace mainwindow {

void balls::Image1_MouseDown() {
    perform(help);
}

void balls::openAbout() {
    if (About != nullptr || closing) {
        return;
    }
    // Asked for while this window still stands on it.
    const platform::Box screen = surroundings.screen(*this);
    hide();
    About = std::make_unique<about::About>(screen, rules::Random(rules::seedFromClock()), [this] { closeAbout(); });
    About->show();
    About->activateWindow();
}

void balls::closeAbout() {
    if (About == nullptr) {
        return;
    }
    // Its own handler is still running.
    About.release()->deleteLater();
    show();
    raise();
    activateWindow();
}

}  // namespace mainwindow
