// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/accessible_role.h"

#include <utility>

#include <QAccessibleWidget>

namespace platform {
namespace {

// Stores a control's role in a child object of the control. Qt creates the control's interface later, when a screen
// reader asks for it.
class RoleOfParent : public QObject {
  public:
    RoleOfParent(QWidget& control, AccessibleRole given) : QObject(&control), role(std::move(given)) {
        if (auto* label = qobject_cast<QLabel*>(&control); label != nullptr && role.labels.isEmpty()) {
            role.labels = {label};
        }
    }

    AccessibleRole role;
};

class Interface : public QAccessibleWidget {
  public:
    Interface(QWidget& control, AccessibleRole role) : QAccessibleWidget(&control, role.role), known(std::move(role)) {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || known.labels.isEmpty() || !widget()->accessibleName().isEmpty()) {
            return QAccessibleWidget::text(kind);
        }
        QStringList texts;
        for (const QLabel* label : known.labels) {
            texts += label == nullptr ? QString() : label->text();
        }
        texts.removeAll({});
        return texts.join(u' ');
    }

    QRect rect() const override {
        QRect area = QAccessibleWidget::rect();
        for (const QLabel* label : known.labels) {
            if (label != nullptr && label->isVisible()) {
                area |= {label->mapToGlobal(QPoint()), label->size()};
            }
        }
        return area;
    }

    int childCount() const override { return static_cast<int>(children().size()); }

    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(children().value(index));
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return child == nullptr ? -1 : static_cast<int>(children().indexOf(child->object()));
    }

    // A screen reader would read out a notification even if its text is empty.
    QAccessible::Role role() const override {
        const bool saysNothing = known.role == QAccessible::Notification && text(QAccessible::Name).isEmpty();
        return saysNothing ? QAccessible::StaticText : known.role;
    }

    QStringList actionNames() const override {
        return known.press == nullptr ? QStringList() : QStringList(pressAction());
    }

    void doAction(const QString& action) override {
        if (actionNames().contains(action)) {
            // Queued: the screen reader waits until doAction() returns, and a press may take long.
            QMetaObject::invokeMethod(
                widget(),
                [control = widget(), press = known.press] {
                    if (control->isVisible()) {
                        press();
                    }
                },
                Qt::QueuedConnection);
        }
    }

    QStringList keyBindingsForAction(const QString& action) const override {
        return actionNames().contains(action) && !known.key.isEmpty() ? QStringList(known.key) : QStringList();
    }

  private:
    // A text box gives the keyboard focus to its editor. Screen readers find only the editor.
    QObjectList children() const {
        QObjectList found;
        for (QWidget* control : known.children) {
            if (control != nullptr) {
                found += control->focusProxy() == nullptr ? control : control->focusProxy();
            }
        }
        return found;
    }

    const AccessibleRole known;
};

QAccessibleInterface* create(const QString&, QObject* object) {
    auto* control = qobject_cast<QWidget*>(object);
    if (control == nullptr) {
        return nullptr;
    }
    for (QObject* child : control->children()) {
        if (const auto* given = dynamic_cast<RoleOfParent*>(child)) {
            return new Interface(*control, given->role);
        }
    }
    return nullptr;
}

}  // namespace

void setAccessibleRole(QWidget& control, AccessibleRole role) {
    QAccessible::installFactory(create);  // Qt installs the same function only once
    // Qt may already have created an interface without the role. It creates one when the text of a label is set, even
    // if no screen reader is active; this one would read only the label's own text. After the deletion, Qt creates an
    // interface with the role. Without need, nothing is deleted: with Qt 6.4, some memory is then never freed.
    const bool isReplaced = QAccessible::isActive() || !role.labels.isEmpty();
    new RoleOfParent(control, std::move(role));
    if (isReplaced) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&control)));
    }
}

void announce(QWidget& notification) {
    if (notification.isVisible()) {
        QAccessibleEvent shown(&notification, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    }
}

}  // namespace platform
