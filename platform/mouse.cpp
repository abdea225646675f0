#include "platform/mouse.h"

#include <utility>

#include <QMouseEvent>
#include <QWidget>

namespace platform {
namespace {

class ClickFilter : public QObject {
  public:
    ClickFilter(QWidget& watched, std::function<void()> atClick)
        : QObject(&watched), control(watched), action(std::move(atClick)) {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                pressed = isLeft(event);
                break;
            case QEvent::MouseButtonRelease:
                if (isLeft(event) && std::exchange(pressed, false) && isInside(event)) {
                    action();
                }
                break;
            case QEvent::Hide:
                pressed = false;
                break;
            default:
                break;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    static bool isLeft(QEvent* event) { return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton; }
    bool isInside(QEvent* event) const {
        return control.rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint());
    }

    QWidget& control;
    std::function<void()> action;
    bool pressed = false;
};

}  // namespace

void onClick(QWidget& control, std::function<void()> action) {
    new ClickFilter(control, std::move(action));
}

}  // namespace platform
