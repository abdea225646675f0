// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The shortcuts and the tab order of the main window. The board handles its own keys. Qt handles the usual keys of
// the other controls.

#include <QAction>
#include <QCheckBox>
#include <QRadioButton>
#include <QShortcut>

#include "mainwindow/balls.h"
#include "mainwindow/board/board_widget.h"
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
    on(Frame1, Qt::Key_Escape, [this] {
        hideEndPanel();
        returnToBoard();
    });
    // Only the board's own keys close the panel: in a size box, Space writes a blank, and on an option it selects.
    closePanel = new QAction(c);
    closePanel->setShortcuts({Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter});
    closePanel->setShortcutContext(Qt::WidgetShortcut);
    closePanel->setAutoRepeat(false);
    connect(closePanel, &QAction::triggered, this, &balls::Frame1_Click);
    c->addAction(closePanel);
    for (platform::TextBox* box : Text1) {
        connect(box, &platform::TextBox::finished, this, &balls::returnToBoard);
    }
}

void balls::returnToBoard() {
    c->setFocus(Qt::ShortcutFocusReason);
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
