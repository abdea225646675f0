// The switch of the sound.

#include <QCheckBox>

#include "mainwindow/balls.h"

namespace mainwindow {

void balls::PlayWave(std::string_view file) {
    if (Check1->isChecked() && !closing) {
        surroundings.sound.play(std::string(file));
    }
}

void balls::warmUpSound() {
    if (Check1->isChecked() && isVisible()) {
        surroundings.sound.warmUp();
    }
}

}  // namespace mainwindow
