// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QAccessible>
#include <QWidget>

namespace platform {

/// What a screen reader is to know of a control that the toolkit cannot know by itself.
struct AccessibleRole {
    QAccessible::Role role = QAccessible::NoRole;
    std::function<void()> press;  ///< what a press action does; may be empty
    QString key;                  ///< the key that does the same; may be empty
};

/// Tells screen readers what a control is. Its name is its accessible name or else its text, its description its
/// accessible description or else its tool tip. A press action on a hidden control does nothing. To be called once for
/// a control.
void setAccessibleRole(QWidget& control, AccessibleRole role);

/// Has screen readers read out a control of the role QAccessible::Notification.
void announce(QWidget& notification);

}  // namespace platform
