// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The window loads the stored settings when it starts and stores them when it closes.

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QRadioButton>

#include "about/about.h"
#include "mainwindow/balls.h"
#include "mainwindow/board/board_widget.h"
#include "platform/text_box.h"
#include "settings/stored_settings.h"

namespace mainwindow {

namespace stored = settings::stored;

void balls::Form_Load() {
    const settings::Store& store = surroundings.store;
    const int level = stored::readWholeNumber(store, stored::level);
    Option1[level < 0 || level >= rules::levels ? 0 : level]->setChecked(true);
    // The board has the keyboard focus at the start, so that the player can use the board's keys at once.
    c->setFocus();
    Text1[1]->setText(stored::read(store, stored::columns));
    Text1[0]->setText(stored::read(store, stored::rows));
    Check1->setChecked(stored::readWholeNumber(store, stored::sound) != 0);
    startGame();
}

void balls::Form_Unload() {
    settings::Store& store = surroundings.store;
    stored::write(store, stored::columns, Text1[1]->text());
    stored::write(store, stored::rows, Text1[0]->text());
    stored::write(store, stored::sound, QString::number(Check1->isChecked() ? 1 : 0));
    store.flush();
}

void balls::closeEvent(QCloseEvent* event) {
    if (turns.isMoving()) {
        event->ignore();
        turns.perform(Command::quit);
        return;
    }
    Form_Unload();
    // quit() closes all windows. If the About window still existed, its handler would show the main window again.
    About.reset();
    event->accept();
    QCoreApplication::quit();
}

}  // namespace mainwindow
