// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/text_box.h"

#include <utility>

#include <QKeyEvent>
#include <QLineEdit>

namespace platform {
namespace {

// QLineEdit deletes the end of a word with Ctrl+Delete, but lets a shortcut have this key.
bool isEditingKey(const QKeyEvent& key) {
    return key.matches(QKeySequence::DeleteEndOfWord);
}

bool isFinishingKey(const QKeyEvent& key) {
    return key.key() == Qt::Key_Escape || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}  // namespace

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

bool TextBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isEditingKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && isFinishingKey(*static_cast<QKeyEvent*>(event))) {
        Q_EMIT finished();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void TextBox::createEditor() {
    editor = new QLineEdit(initial, parentWidget());
    editor->setObjectName(objectName());
    editor->setAccessibleName(accessibleName());
    editor->setContextMenuPolicy(Qt::PreventContextMenu);
    editor->installEventFilter(this);
    editor->setAttribute(Qt::WA_NoMousePropagation);
    editor->setFont(font());
    editor->setGeometry(geometry());
    setTabOrder(this, editor);
    setFocusProxy(editor);
    editor->show();
}

}  // namespace platform
