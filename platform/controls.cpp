#include "platform/controls.h"

#include <algorithm>

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

#include "platform/label.h"
#include "platform/text_box.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

QLabel* createLabel(const ControlRow& row, QWidget& parent) {
    auto* label = new Label(QString::fromUtf8(row.text), &parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(row.align | Qt::AlignTop);
    label->setWordWrap(row.wraps);
    label->setSizedToText(row.autoSize);
    return label;
}

QLabel* createPicture(const ControlRow& row, QWidget& parent, const PictureSource& picture) {
    auto* control = new QLabel(&parent);
    control->setPixmap(picture(QString::fromLatin1(row.picture)));
    return control;
}

QWidget* createFrame(QWidget& parent) {
    auto* frame = new QWidget(&parent);
    frame->setAutoFillBackground(true);
    return frame;
}

// An outline alone: what lies under it takes the mouse.
QFrame* createShape(QWidget& parent) {
    auto* shape = new QFrame(&parent);
    shape->setFrameStyle(QFrame::Box | QFrame::Plain);
    shape->setAttribute(Qt::WA_TransparentForMouseEvents);
    return shape;
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
            return createShape(parent);
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
    // A new widget lies in front of its elder siblings.
    std::for_each(rows.rbegin(), rows.rend(), [&](const ControlRow& row) { createControl(row, container, picture); });
}

}  // namespace platform
