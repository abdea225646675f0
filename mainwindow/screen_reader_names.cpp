// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The roles and names of the controls for screen readers. The board has its own table for them.

#include "mainwindow/balls.h"
#include "mainwindow/board/accessible_table.h"
#include "platform/accessible_role.h"
#include "platform/label.h"
#include "platform/picture_box.h"
#include "platform/text_box.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

void balls::describeControls() {
    const auto describeButton = [](QWidget& control, QKeyCombination key, const std::function<void()>& press) {
        const QString keyName = QKeySequence(key).toString(QKeySequence::NativeText);
        platform::setAccessibleRole(control, {QAccessible::Button, press, keyName});
    };
    makeAccessible(*c);
    platform::setAccessibleRole(*this, {.role = QAccessible::Window});
    for (int i = 0; i < static_cast<int>(ImBTN.size()); ++i) {
        describeButton(*ImBTN[i], commandKeys[i], [this, i] { ImBTN_Click(i); });
        ImBTN[i]->setAccessibleName(LabBtn[i]->text());
        ImBTN[i]->setAccessibleDescription(LabBtn[i]->toolTip());
    }
    describeButton(*Image1, helpKey, [this] { Image1_MouseDown(); });
    Image1->setAccessibleName(u"Aide"_s);
    // Label5(0) is the caption of the columns, Label5(1) of the rows; the boxes have the opposite indices.
    Text1[1]->setAccessibleName(Label5[0]->text());
    Text1[0]->setAccessibleName(Label5[1]->text());
    for (platform::Label* status : {l1[0], l1[3]}) {
        platform::setAccessibleRole(*status, {.role = QAccessible::Notification});
    }
    platform::setAccessibleRole(*Frame1, {QAccessible::Notification, [this] { Frame1_Click(); }, u"Esc"_s});
}

}  // namespace mainwindow
