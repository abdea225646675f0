// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/controls.h"

#include <algorithm>

#include <QCheckBox>
#include <QRadioButton>

#include "platform/label.h"
#include "platform/outline.h"
#include "platform/picture_box.h"
#include "platform/text_box.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

Label* createLabel(const ControlRow& row, QWidget& parent) {
    auto* label = new Label(QString::fromUtf8(row.text), &parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(row.align | Qt::AlignTop);
    label->setWordWrap(row.wraps);
    label->setSizedToText(row.autoSize);
    return label;
}

QWidget* createPicture(const ControlRow& row, QWidget& parent, const PictureSource& picture) {
    return new PictureBox(picture(QString::fromLatin1(row.picture)), &parent);
}

QWidget* createFrame(QWidget& parent) {
    auto* frame = new QWidget(&parent);
    frame->setAutoFillBackground(true);
    return frame;
}

QWidget* createWidget(const ControlRow& row, QWidget& parent, const PictureSource& picture) {
    switch (row.kind) {
        case Kind::label:
            return createLabel(row, parent);
        case Kind::picture:
            return createPicture(row, parent, picture);
        case Kind::option:
            return new QRadioButton(QString::fromUtf8(row.text), &parent);
        case Kind::checkBox:
            return new QCheckBox(QString::fromUtf8(row.text), &parent);
        case Kind::textBox:
            return new TextBox(QString::fromUtf8(row.text), &parent);
        case Kind::shape:
            return new Outline(&parent);
        default:
            return createFrame(parent);
    }
}

void createControl(const ControlRow& row, QWidget& parent, const PictureSource& picture) {
    QWidget* control = createWidget(row, parent, picture);
    control->setObjectName(controlName(row.name, row.index));
    control->setAttribute(Qt::WA_NoMousePropagation);
    control->setToolTip(QString::fromUtf8(row.toolTip));
    control->setFont(uiFont(row.size, row.bold ? QFont::Bold : QFont::Normal));
    QPalette palette = control->palette();
    palette.setColor(QPalette::WindowText, row.colour);
    control->setPalette(palette);
    control->setGeometry(toPixels(row.place));
    control->setHidden(row.hidden);
}

}  // namespace

QString controlName(const char* name, int index) {
    const QString bare = QString::fromLatin1(name);
    return index < 0 ? bare : u"%1(%2)"_s.arg(bare).arg(index);
}

void buildControls(std::span<const ControlRow> rows, QWidget& container, const PictureSource& picture) {
    // The last row is created first: Qt puts each new widget in front of its siblings.
    std::for_each(rows.rbegin(), rows.rend(), [&](const ControlRow& row) { createControl(row, container, picture); });
}

}  // namespace platform
