// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/text_box.h"

#include <utility>

#include <QKeyEvent>
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

// QLineEdit deletes the end of a word with Ctrl+Delete, but lets a shortcut have this key.
bool TextBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::DeleteEndOfWord)) {
        event->accept();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

// These keys come from the editor, which does not use them.
void TextBox::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter) {
        Q_EMIT finished();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void TextBox::createEditor() {
    editor = new QLineEdit(initial, this);
    editor->setObjectName(objectName());
    editor->setAccessibleName(accessibleName());
    editor->setContextMenuPolicy(Qt::PreventContextMenu);
    editor->setGeometry(rect());
    editor->installEventFilter(this);
    setTabOrder(this, editor);
    setFocusProxy(editor);
    editor->show();
}

}  // namespace platform
