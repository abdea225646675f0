#include "mainwindow/controls.h"

#include <algorithm>

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

#include "assets/pictures.h"
#include "mainwindow/layout.h"
#include "platform/label.h"
#include "platform/text_box.h"

using namespace Qt::StringLiterals;

namespace mainwindow {
namespace {

QLabel* createLabel(const ControlRow& row, QWidget& parent) {
    auto* label = new platform::Label(QString::fromUtf8(row.text), &parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(row.align | Qt::AlignTop);
    label->setWordWrap(row.wraps);
    label->setSizedToText(row.autoSize);
    return label;
}

QLabel* createPicture(const ControlRow& row, QWidget& parent) {
    auto* picture = new QLabel(&parent);
    picture->setPixmap(assets::picture(QString::fromLatin1(row.picture)));
    return picture;
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

QWidget* createWidget(const ControlRow& row, QWidget& parent) {
    switch (row.kind) {
        case Kind::label:
            return createLabel(row, parent);
        case Kind::picture:
            return createPicture(row, parent);
        case Kind::option:
            return new QRadioButton(QString::fromUtf8(row.text), &parent);
        case Kind::checkBox:
            return new QCheckBox(QString::fromUtf8(row.text), &parent);
        case Kind::textBox:
            return new platform::TextBox(QString::fromUtf8(row.text), &parent);
        case Kind::shape:
            return createShape(parent);
        default:
            return createFrame(parent);
    }
}

void createControl(const ControlRow& row, QWidget& parent) {
    QWidget* control = createWidget(row, parent);
    control->setObjectName(controlName(row.name, row.index));
    control->setAttribute(Qt::WA_NoMousePropagation);
    control->setToolTip(QString::fromUtf8(row.toolTip));
    control->setFont(platform::uiFont(row.size, row.bold ? QFont::Bold : QFont::Normal));
    QPalette palette = control->palette();
    palette.setColor(QPalette::WindowText, row.colour);
    control->setPalette(palette);
    control->setGeometry(platform::toPixels(row.place));
    control->setHidden(row.hidden);
}

void build(Container container, QWidget& parent) {
    // A new widget lies in front of its elder siblings.
    const auto rows = controlsOf(container);
    std::for_each(rows.rbegin(), rows.rend(), [&](const ControlRow& row) { createControl(row, parent); });
}

}  // namespace

QString controlName(const char* name, int index) {
    const QString bare = QString::fromLatin1(name);
    return index < 0 ? bare : u"%1(%2)"_s.arg(bare).arg(index);
}

void buildControls(QWidget& window) {
    build(Container::window, window);
    build(Container::Frame1, *window.findChild<QWidget*>(u"Frame1"_s));
    build(Container::Frame2, *window.findChild<QWidget*>(u"Frame2"_s));
}

}  // namespace mainwindow
