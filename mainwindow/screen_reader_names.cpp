// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// What screen readers find in the window, and what they read out after a move. The board has a table of its own in
// board/accessible_table.cpp.

#include <QCheckBox>
#include <QRadioButton>

#include "mainwindow/balls.h"
#include "mainwindow/board/board_widget.h"
#include "platform/accessible_role.h"
#include "platform/label.h"
#include "platform/picture_box.h"
#include "platform/text_box.h"
#include "rules/group.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

void balls::describeControls() {
    const auto describeButton = [](QWidget& control, QKeyCombination key, const std::function<void()>& press) {
        const QString keyName = QKeySequence(key).toString(QKeySequence::NativeText);
        platform::setAccessibleRole(control, {.role = QAccessible::Button, .press = press, .key = keyName});
    };
    // Frame1 comes first because it is in front of the board.
    platform::setAccessibleRole(*this, {.role = QAccessible::Window, .children = {Frame1, c, Frame2}});
    QWidget* levels = Option1[0]->parentWidget();
    platform::setAccessibleRole(*Frame2, {.role = QAccessible::Client,
                                          .children = {levels, Text1[1], Text1[0], Check1, Label4, ImBTN[2], sc, l1[0],
                                                       ImBTN[0], Image1, ImBTN[1]}});
    platform::setAccessibleRole(*levels, {.role = QAccessible::Grouping, .children = {Option1.begin(), Option1.end()}});
    levels->setAccessibleName(u"Niveau"_s);
    for (int i = 0; i < static_cast<int>(ImBTN.size()); ++i) {
        describeButton(*ImBTN[i], commandKeys[i], [this, i] { ImBTN_Click(i); });
        ImBTN[i]->setAccessibleName(LabBtn[i]->text());
        ImBTN[i]->setAccessibleDescription(LabBtn[i]->toolTip());
    }
    describeButton(*Image1, helpKey, [this] { Image1_MouseDown(); });
    Image1->setAccessibleName(u"Aide"_s);
    // The indices are crossed: Label5(0) is the caption of Text1(1), Label5(1) of Text1(0).
    Text1[1]->setAccessibleName(Label5[0]->text());
    Text1[0]->setAccessibleName(Label5[1]->text());
    platform::setAccessibleRole(*Label4, {.role = QAccessible::StaticText, .labels = {Label2, Label4}});
    platform::setAccessibleRole(*sc, {.role = QAccessible::StaticText, .labels = {sc, Label3}});
    platform::setAccessibleRole(*l1[0], {.role = QAccessible::Notification, .labels = {l1[0], l1[3]}});
    platform::setAccessibleRole(
        *Frame1, {.role = QAccessible::Notification, .press = [this] { Frame1_Click(); }, .key = u"Esc"_s});
}

// A move or a new game is one announcement, although its texts change one after the other.
void balls::announceStatus() {
    QStringList sentences;
    if (!l1[0]->text().isEmpty()) {
        sentences << l1[0]->text() << u"Score %1."_s.arg(sc->text());
    }
    sentences << l1[3]->text();
    if (!rules::hasGroup(game.board)) {
        sentences << u"Aucun groupe."_s;
    }
    l1[0]->setAccessibleName(sentences.join(u' '));
    platform::announce(*l1[0]);
}

}  // namespace mainwindow
