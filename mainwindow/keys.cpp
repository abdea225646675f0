// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// What keys do beside those that the toolkit knows and those of the board.

#include <QCheckBox>
#include <QRadioButton>
#include <QShortcut>

#include "mainwindow/balls.h"
#include "mainwindow/boardcursor.h"
#include "platform/text_box.h"

namespace mainwindow {

void balls::connectKeys() {
    const auto on = [](QWidget* where, QKeySequence key, auto act) {
        auto* shortcut = new QShortcut(key, where, act);
        shortcut->setAutoRepeat(false);
    };
    for (int i = 0; const auto& key : commandKeys) {
        on(this, key, [this, i] { ImBTN_Click(i); });
        ++i;
    }
    on(this, Qt::CTRL | Qt::Key_N, [this] { ImBTN_Click(newGame); });
    on(this, helpKey, [this] { Image1_MouseDown(); });
    on(this, Qt::CTRL | Qt::Key_S, [this] { Check1->toggle(); });
    // A hidden panel hears no keys.
    for (const auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        on(Frame1, key, [this] { Frame1_Click(); });
    }
}

// The board comes first of all, by its age.
void balls::orderTabStops() {
    for (int k = 4; k > 0; --k) {
        setTabOrder(Option1[k], Option1[k - 1]);
    }
    setTabOrder(Option1[0], Text1[1]);
    setTabOrder(Text1[1], Text1[0]);
    setTabOrder(Text1[0], Check1);
}

}  // namespace mainwindow
