// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The sound of a move, and its switch.

#include <QCheckBox>

#include "mainwindow/balls.h"

namespace mainwindow {

void balls::PlayWave(std::string_view file) {
    if (Check1->isChecked() && !closing) {
        surroundings.sound.play(std::string(file));
    }
}

void balls::warmUpSound() {
    if (Check1->isChecked()) {
        surroundings.sound.warmUp();
    }
}

}  // namespace mainwindow
