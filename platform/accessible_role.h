// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QAccessible>
#include <QWidget>

namespace platform {

/// What Qt cannot tell a screen reader about a control by itself.
struct AccessibleRole {
    QAccessible::Role role = QAccessible::NoRole;
    std::function<void()> press;  ///< the action "press"; may be empty
    QString key;                  ///< the key for the same action; may be empty
};

/// Gives a control a role for screen readers. They read its accessible name, or its text if it has none, and its
/// accessible description, or its tooltip if it has none. The press action does nothing while the control is hidden.
/// Call it once for a control.
void setAccessibleRole(QWidget& control, AccessibleRole role);

/// Makes screen readers read out a control with the role QAccessible::Notification.
void announce(QWidget& notification);

}  // namespace platform
