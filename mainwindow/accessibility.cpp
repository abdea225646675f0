// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// What screen readers are told of the controls; the board speaks for itself.

#include "mainwindow/balls.h"
#include "platform/accessible.h"
#include "platform/controls.h"
#include "platform/label.h"
#include "platform/picture_box.h"
#include "platform/text_box.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

void balls::describeControls() {
    const auto button = [](QWidget& control, QKeyCombination key, const std::function<void()>& press) {
        const QString keyName = QKeySequence(key).toString(QKeySequence::NativeText);
        platform::setAccessibleRole(control, {QAccessible::Button, press, keyName});
    };
    platform::setAccessibleRole(*this, {.role = QAccessible::Window});
    for (int i = 0; platform::PictureBox * face : ImBTN) {
        const auto* caption = platform::control<platform::Label>(*this, "LabBtn", i);
        button(*face, commandKeys[i], [this, i] { ImBTN_Click(i); });
        face->setAccessibleName(caption->text());
        face->setAccessibleDescription(caption->toolTip());
        ++i;
    }
    auto& icon = *platform::control<QWidget>(*this, "Image1");
    button(icon, helpKey, [this] { Image1_MouseDown(); });
    icon.setAccessibleName(u"Aide"_s);
    // "Colonnes" stands over the box of the columns, "Lignes" over that of the rows.
    for (const int k : {0, 1}) {
        Text1[1 - k]->setAccessibleName(platform::control<platform::Label>(*this, "Label5", k)->text());
    }
    for (platform::Label* status : {l1[0], l1[3]}) {
        platform::setAccessibleRole(*status, {.role = QAccessible::Notification});
    }
    platform::setAccessibleRole(*Frame1, {QAccessible::Notification, [this] { Frame1_Click(); }, u"Esc"_s});
}

}  // namespace mainwindow
