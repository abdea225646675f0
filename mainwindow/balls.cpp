#include "mainwindow/balls.h"

#include <utility>

#include <QCheckBox>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>

#include "mainwindow/boardgeometry.h"
#include "mainwindow/controls.h"
#include "platform/label.h"
#include "platform/mouse.h"
#include "platform/text_box.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

balls::balls(Surroundings world)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      surroundings(std::move(world)),
      bestScores(surroundings.store) {
    setWindowTitle(u"Zampotine"_s);
    buildControls(*this);
    bindControls();
    connectControls();
    Form_Load();
}

template <typename Widget>
Widget* balls::control(const char* name, int index) const {
    auto* found = findChild<Widget*>(controlName(name, index));
    Q_ASSERT(found != nullptr);
    return found;
}

void balls::bindControls() {
    Frame1 = control<QWidget>("Frame1");
    Frame2 = control<QWidget>("Frame2");
    Check1 = control<QCheckBox>("Check1");
    sc = control<platform::Label>("sc");
    Label3 = control<platform::Label>("Label3");
    Label4 = control<platform::Label>("Label4");
    l1[0] = control<platform::Label>("l1", 0);
    l1[3] = control<platform::Label>("l1", 3);
    for (int k = 0; auto& box : Text1) {
        box = control<platform::TextBox>("Text1", k++);
    }
    for (int k = 0; auto& option : Option1) {
        option = control<QRadioButton>("Option1", k++);
    }
    for (int k = 0; auto& label : hsc) {
        label = control<platform::Label>("hsc", k++);
        label->setEnabled(false);
    }
}

void balls::connectControls() {
    for (int i = 0; i < 3; ++i) {
        platform::onClick(*control<QLabel>("ImBTN", i), [this, i] { ImBTN_Click(i); });
        platform::onClick(*control<QLabel>("LabBtn", i), [this, i] { LabBtn_Click(i); });
    }
    for (int k = 0; QRadioButton * option : Option1) {
        // The options are one tab stop, entered at the selected one.
        option->setFocusPolicy(Qt::ClickFocus);
        connect(option, &QRadioButton::toggled, this, [this, option, k](bool selected) {
            option->setFocusPolicy(selected ? Qt::StrongFocus : Qt::ClickFocus);
            if (selected) {
                Option1_Click(k);
            }
        });
        ++k;
    }
    platform::onClick(*Frame1, [this] { Frame1_Click(); });
    // The session may end without closing the window first.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &balls::Form_Unload);

    for (int k = 4; k > 0; --k) {
        setTabOrder(Option1[k], Option1[k - 1]);
    }
    setTabOrder(Option1[0], Text1[1]);
    setTabOrder(Text1[1], Text1[0]);
    setTabOrder(Text1[0], Check1);
}

void balls::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (const QRect& area : event->region()) {
        c.draw(painter, game.board, area);
    }
    frame.draw(painter);
}

void balls::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (frame.contains(point)) {
        return;
    }
    if (const auto cell = cellAt(game.board, point)) {
        c_MouseDown(*cell);
    }
}

}  // namespace mainwindow
