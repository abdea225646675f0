// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/accessible_role.h"

#include <utility>

#include <QAccessibleWidget>
#include <QLabel>

namespace platform {
namespace {

// Stores a control's role in a child object of the control. Qt creates the control's interface later, when a screen
// reader asks for it.
class RoleOfParent : public QObject {
  public:
    RoleOfParent(QWidget& control, AccessibleRole given) : QObject(&control), role(std::move(given)) {}

    const AccessibleRole role;
};

class Interface : public QAccessibleWidget {
  public:
    Interface(QWidget& control, const AccessibleRole& role) : QAccessibleWidget(&control, role.role), known(role) {}

    QString text(QAccessible::Text kind) const override {
        const auto* label = qobject_cast<const QLabel*>(widget());
        const bool isItsName = kind == QAccessible::Name && label != nullptr && widget()->accessibleName().isEmpty();
        return isItsName ? label->text() : QAccessibleWidget::text(kind);
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
    const AccessibleRole& known;
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
    new RoleOfParent(control, std::move(role));
    if (QAccessible::isActive()) {
        // Qt may already have created an interface without the role. After its deletion, Qt creates one with the role.
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&control)));
    }
}

void announce(QWidget& notification) {
    QAccessibleEvent shown(&notification, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

}  // namespace platform
