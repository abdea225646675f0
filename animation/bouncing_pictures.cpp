#include "animation/bouncing_pictures.h"

#include <algorithm>

#include <QEvent>
#include <QWindow>

#include "platform/twips.h"

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;

namespace animation {
namespace {

bool isOnScreen(const QWidget& widget) {
    const QWindow* window = widget.window()->windowHandle();
    return widget.isVisible() && window != nullptr && window->isExposed();
}

}  // namespace

BouncingPictures::BouncingPictures(QWidget& where) : QObject(&where), field(where) {
    std::ranges::transform(std::array{u"ip"_s, u"ir"_s, u"iv"_s, u"ig"_s, u"ib"_s, u"ij"_s}, pictures.begin(),
                           [&](const QString& name) { return field.findChild<QWidget*>(name); });
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, &BouncingPictures::showFrame);
    field.installEventFilter(this);
}

void BouncingPictures::start(const Draw& draw) {
    balls = scatter(platform::toTwips(field.width()), platform::toTwips(field.height()), draw);
    advance(1);
    run();
}

void BouncingPictures::stop() {
    pace.reset();
    timer.stop();
}

// What comes back on screen is painted: then it is time to go on.
bool BouncingPictures::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && pace && !timer.isActive()) {
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
    }
}

void BouncingPictures::advance(int passes) {
    while (passes-- > 0) {
        pass(balls, platform::toTwips(field.width()), platform::toTwips(field.height()));
    }
    for (std::size_t k = 0; k < balls.size(); ++k) {
        const QPoint place(platform::toPixels(balls[k].PosX), platform::toPixels(balls[k].PosY));
        const QRect before = pictures[k]->geometry();
        // One area for each ball is painted sooner than the corners of two.
        field.update(before | QRect(place, before.size()));
        pictures[k]->move(place);
    }
}

void BouncingPictures::waitForNextFrame() {
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(pace->nextFrame() - Clock::now());
    timer.start(std::max(wait, std::chrono::milliseconds(0)));
}

}  // namespace animation
