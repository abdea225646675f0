// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/text_box.h"

#include <utility>

#include <QLineEdit>

namespace platform {

TextBox::TextBox(QString text, QWidget* parent) : QWidget(parent), initial(std::move(text)) {
    setFocusPolicy(Qt::StrongFocus);
}

QString TextBox::text() const {
    return editor == nullptr ? initial : editor->text();
}

void TextBox::setText(const QString& text) {
    if (editor == nullptr) {
        initial = text;
    } else {
        editor->setText(text);
    }
}

void TextBox::paintEvent(QPaintEvent*) {
    if (editor == nullptr) {
        createEditor();
    }
}

void TextBox::createEditor() {
    editor = new QLineEdit(initial, this);
    editor->setObjectName(objectName());
    editor->setAccessibleName(accessibleName());
    editor->setContextMenuPolicy(Qt::PreventContextMenu);
    editor->setGeometry(rect());
    setTabOrder(this, editor);
    setFocusProxy(editor);
    editor->show();
}

}  // namespace platform
