// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The roles and names that screen readers get for the controls. The board has a table of its own in
// board/accessible_table.cpp.

#include "mainwindow/balls.h"
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
    platform::setAccessibleRole(*this, {.role = QAccessible::Window});
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
    for (platform::Label* status : {l1[0], l1[3]}) {
        platform::setAccessibleRole(*status, {.role = QAccessible::Notification});
    }
    platform::setAccessibleRole(*Frame1, {QAccessible::Notification, [this] { Frame1_Click(); }, u"Esc"_s});
}

}  // namespace mainwindow
