// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The options for the level, `Option1`.

#include <algorithm>

#include <QRadioButton>

#include "mainwindow/balls.h"
#include "settings/stored_settings.h"

namespace mainwindow {

// Screen readers read out the name of the group when the focus enters it. The options fill the group, so the mouse
// never meets the group itself.
void balls::groupLevels() {
    QRect area;
    for (const QRadioButton* option : Option1) {
        area |= option->geometry();
    }
    auto* group = new QWidget(Frame2);
    group->setGeometry(area);
    for (QRadioButton* option : Option1) {
        const QPoint place = option->pos() - area.topLeft();
        option->setParent(group);
        option->move(place);
        option->show();
    }
}

void balls::connectLevels() {
    for (int k = 0; QRadioButton * option : Option1) {
        // The options are one tab stop: Tab goes to the selected option.
        option->setFocusPolicy(Qt::ClickFocus);
        connect(option, &QRadioButton::toggled, this, [this, option, k](bool selected) {
            option->setFocusPolicy(selected ? Qt::StrongFocus : Qt::ClickFocus);
            if (selected) {
                Option1_Click(k);
            }
        });
        ++k;
    }
}

void balls::Option1_Click(int Index) {
    settings::stored::write(surroundings.store, settings::stored::level, QString::number(Index));
}

int balls::selectedLevel() const {
    const auto* const selected = std::ranges::find_if(Option1, &QRadioButton::isChecked);
    return static_cast<int>(selected - Option1.begin());
}

}  // namespace mainwindow
