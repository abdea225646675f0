// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "about/about.h"

#include <algorithm>
#include <utility>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPaintEvent>

#include "about/about_controls.h"
#include "animation/bouncing_pictures.h"
#include "assets/pictures.h"
#include "platform/accessible_role.h"
#include "platform/label.h"
#include "platform/mouse.h"
#include "platform/open_address.h"
#include "platform/pixel_painter.h"
#include "platform/screen.h"

using namespace Qt::StringLiterals;

namespace about {
namespace {

enum Link { back = 0, site = 1, mail = 2 };

constexpr int noLabel = 10;  // No label has this index.

// Makes label `Index` of the group bold and all other labels regular.
template <typename Group>
void embolden(const Group& group, int Index, platform::FontSize size) {
    for (int k = 0; platform::Label * label : group) {
        label->setFont(platform::uiFont(size, k++ == Index ? QFont::Bold : QFont::Normal));
    }
}

}  // namespace

About::About(const platform::Box& screen, const animation::RandomSource& random, std::function<void()> whenClosed)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      closed(std::move(whenClosed)),
      background(assets::picture(u"about.bmp"_s)) {
    setWindowTitle(u"Zampotine"_s);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFixedSize(background.size());
    platform::keepSizeOnEveryScreen(*this);
    move(platform::toPixels(screen.Left + (screen.Width - platform::toTwips(width())) / 2),
         platform::toPixels(screen.Top + (screen.Height - platform::toTwips(height())) / 2));
    platform::buildControls(controls(), *this, assets::picture);
    for (int k = 0; auto& label : Label1) {
        label = platform::control<platform::Label>(*this, "Label1", k);
        platform::onMove(*label, [this, k] { Label1_MouseMove(k); });
        platform::onClick(*label, [this, k] { Label1_Click(k); });
        platform::setAccessibleRole(*label, {.role = QAccessible::Link, .press = [this, k] { Label1_Click(k); }});
        label->setFocusPolicy(Qt::TabFocus);
        label->setCursor(Qt::PointingHandCursor);
        ++k;
    }
    setTabOrder(Label1[mail], Label1[site]);
    setTabOrder(Label1[site], Label1[back]);
    Label1[back]->setFocus();
    for (int k = 0; auto& label : Label2) {
        label = platform::control<platform::Label>(*this, "Label2", k);
        platform::onMove(*label, [this, k] { Label2_MouseMove(k); });
        ++k;
    }
    describe();
    AnimateAbout(random);
}

// When the window opens, screen readers read its accessible name and its accessible description aloud. The description
// is the text of all paragraphs.
void About::describe() {
    QStringList paragraphs;
    for (const platform::Label* label : Label2) {
        paragraphs += label->text();
    }
    QList<QPointer<QWidget>> inReadingOrder(Label2.begin(), Label2.end());
    inReadingOrder << Label1[mail] << Label1[site] << Label1[back];
    platform::setAccessibleRole(*this, {.role = QAccessible::Window, .children = inReadingOrder});
    setAccessibleName(u"A Propos / Aide"_s);
    setAccessibleDescription(paragraphs.join(u'\n'));
}

void About::AnimateAbout(const animation::RandomSource& random) {
    auto* balls = new animation::BouncingPictures(*this);
    balls->start(random);
}

void About::Label1_Click(int Index) {
    switch (Index) {
        case mail:
            platform::openAddress(u"mailto:" ZAMPOTINE_AUTHOR_MAIL "?subject=Frelquat V" ZAMPOTINE_MAJOR_MINOR ""_s);
            break;
        case site:
            platform::openAddress(u"" ZAMPOTINE_AUTHOR_SITE ""_s);
            break;
        case back:
            close();
            break;
        default:
            break;
    }
}

void About::Label1_MouseMove(int Index) {
    embolden(Label1, Index, platform::FontSize::medium);
}

void About::Label2_MouseMove(int Index) {
    embolden(Label2, Index, platform::FontSize::small);
    Label1_MouseMove(noLabel);
}

void About::Form_MouseMove() {
    Label2_MouseMove(noLabel);
}

void About::closeEvent(QCloseEvent* event) {
    event->accept();
    hide();
    closed();
}

void About::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (event->isAutoRepeat()) {
        return;
    }
    if (key == Qt::Key_Escape) {
        close();
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
        Label1_Click(linkWithFocus());
    }
}

// When Tab moves the focus to a link, the link becomes bold, like a link under the mouse.
bool About::focusNextPrevChild(bool next) {
    const bool moved = QWidget::focusNextPrevChild(next);
    Label1_MouseMove(linkWithFocus());
    return moved;
}

int About::linkWithFocus() const {
    const auto* const found = std::ranges::find_if(Label1, &QWidget::hasFocus);
    return found == Label1.end() ? noLabel : static_cast<int>(found - Label1.begin());
}

void About::mouseMoveEvent(QMouseEvent*) {
    Form_MouseMove();
}

void About::paintEvent(QPaintEvent* event) {
    platform::PixelPainter(*this).draw({}, background, event->region());
}

}  // namespace about
