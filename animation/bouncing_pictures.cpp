// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "animation/bouncing_pictures.h"

#include <algorithm>

#include <QEvent>
#include <QWindow>

#include "platform/controls.h"
#include "platform/pixel_painter.h"
#include "platform/twips.h"

using Clock = std::chrono::steady_clock;

namespace animation {
namespace {

bool isOnScreen(const QWidget& widget) {
    const QWindow* window = widget.window()->windowHandle();
    return widget.isVisible() && window != nullptr && window->isExposed();
}

}  // namespace

BouncingPictures::BouncingPictures(QWidget& where) : QObject(&where), field(where) {
    std::ranges::transform(std::array{"ip", "ir", "iv", "ig", "ib", "ij"}, pictures.begin(),
                           [&](const char* name) { return platform::control<QWidget>(field, name); });
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, &BouncingPictures::showFrame);
    field.installEventFilter(this);
}

void BouncingPictures::start(const RandomSource& random) {
    balls = scatter(platform::toTwips(field.width()), platform::toTwips(field.height()), random);
    advance(1);
    run();
}

void BouncingPictures::stop() {
    pace.reset();
    timer.stop();
}

// Watches the field and its window: when the field becomes visible again, Qt may send an event only to the window.
bool BouncingPictures::eventFilter(QObject* watched, QEvent* event) {
    const bool shown = event->type() == QEvent::Show || event->type() == QEvent::Expose;
    if (shown && pace && !timer.isActive()) {
        run();
    }
    return QObject::eventFilter(watched, event);
}

void BouncingPictures::run() {
    pace.emplace(Clock::now());
    waitForNextFrame();
}

void BouncingPictures::showFrame() {
    if (isOnScreen(field)) {
        advance(pace->passesDue(Clock::now()));
        waitForNextFrame();
    } else if (QWindow* window = field.window()->windowHandle()) {
        window->installEventFilter(this);
    }
}

void BouncingPictures::advance(int passes) {
    while (passes-- > 0) {
        pass(balls, platform::toTwips(field.width()), platform::toTwips(field.height()));
    }
    for (std::size_t k = 0; k < balls.size(); ++k) {
        const QPoint place(platform::toPixels(balls[k].PosX), platform::toPixels(balls[k].PosY));
        const QRect before = pictures[k]->geometry();
        // Qt paints one rectangle around the old and the new place faster than two rectangles.
        field.update(platform::paintedArea(field, before | QRect(place, before.size())));
        pictures[k]->move(place);
    }
}

void BouncingPictures::waitForNextFrame() {
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(pace->nextFrame() - Clock::now());
    timer.start(std::max(wait, std::chrono::milliseconds(0)));
}

}  // namespace animation
