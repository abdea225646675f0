// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The shortcuts and the tab order of the main window. The board handles its own keys. Qt handles the usual keys of
// the other controls.

#include <QCheckBox>
#include <QRadioButton>
#include <QShortcut>

#include "mainwindow/balls.h"
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
    on(this, Qt::CTRL | Qt::Key_N, [this] { turns.perform(Command::newGame); });
    on(this, helpKey, [this] { Image1_MouseDown(); });
    on(this, Qt::CTRL | Qt::Key_S, [this] { Check1->toggle(); });
    // Qt ignores the shortcuts of Frame1 while Frame1 is hidden.
    for (const auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        on(Frame1, key, [this] { Frame1_Click(); });
    }
}

// The board was created first, so it is already first in the tab order.
void balls::orderTabStops() {
    for (std::size_t k = Option1.size() - 1; k > 0; --k) {
        setTabOrder(Option1[k], Option1[k - 1]);
    }
    setTabOrder(Option1[0], Text1[1]);
    setTabOrder(Text1[1], Text1[0]);
    setTabOrder(Text1[0], Check1);
}

}  // namespace mainwindow
