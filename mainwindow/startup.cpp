// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// How the window starts and ends: the settings that it loads and stores.

#include <climits>
#include <cmath>
#include <optional>

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QRadioButton>

#include "about/about.h"
#include "mainwindow/balls.h"
#include "mainwindow/boardcursor.h"
#include "platform/text_box.h"
#include "settings/number.h"

using namespace Qt::StringLiterals;

namespace mainwindow {
namespace {

const auto init = u"init"_s;

// The whole number nearest to the one that a stored text holds.
std::optional<int> wholeNumber(const QString& text) {
    const auto number = settings::numberIn(text);
    if (!number || std::abs(*number) > INT_MAX) {
        return std::nullopt;
    }
    return static_cast<int>(std::lround(*number));
}

}  // namespace

void balls::Form_Load() {
    const settings::Store& store = surroundings.store;
    const auto level = wholeNumber(store.read(init, u"Niveau"_s, u"0"_s)).value_or(0);
    Option1[level < 0 || level > 4 ? 0 : level]->setChecked(true);
    // The toolkit would give the focus to the first option of the tab order, which a key would then select.
    cursor->setFocus();
    Text1[1]->setText(store.read(init, u"Col"_s, u"25"_s));
    Text1[0]->setText(store.read(init, u"Lig"_s, u"25"_s));
    const QString sound = store.read(init, u"Son"_s, u"1"_s);
    Check1->setChecked(wholeNumber(sound).value_or(1) != 0);
    startGame();
}

void balls::Option1_Click(int Index) {
    surroundings.store.write(init, u"Niveau"_s, QString::number(Index));
}

void balls::Form_Unload() {
    settings::Store& store = surroundings.store;
    store.write(init, u"Col"_s, Text1[1]->text());
    store.write(init, u"Lig"_s, Text1[0]->text());
    store.write(init, u"Son"_s, QString::number(Check1->isChecked() ? 1 : 0));
    store.flush();
}

void balls::closeEvent(QCloseEvent* event) {
    if (moving) {
        event->ignore();
        keep(quit);
        return;
    }
    Form_Unload();
    // The toolkit would close it too, and this window would come back for a moment.
    About.reset();
    event->accept();
    QCoreApplication::quit();
}

}  // namespace mainwindow
