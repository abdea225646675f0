// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QAccessible>
#include <QLabel>
#include <QList>
#include <QPointer>
#include <QWidget>

namespace platform {

/// Facts about a control for screen readers, in addition to the facts that Qt provides.
struct AccessibleRole {
    QAccessible::Role role = QAccessible::NoRole;
    std::function<void()> press;  ///< the press action; may be empty
    QString key;                  ///< the shortcut of the press action; may be empty
    /// The labels that belong to the control. Their texts are the name of a control that has no accessible name, and
    /// their areas are part of the area of the control. If there are none, a label has its own text.
    QList<QPointer<QLabel>> labels;
    /// The controls inside this control, in reading order. Screen readers find no others in it.
    QList<QPointer<QWidget>> children;
};

/// Gives a control a role for screen readers. Do not call this function twice for a control. Screen readers also read
/// the accessible description, or the tooltip of a control that has no description. The press action of a hidden
/// control does nothing.
void setAccessibleRole(QWidget& control, AccessibleRole role);

/// Makes screen readers read out a control whose role is QAccessible::Notification. Qt does the same when it shows the
/// control, so a hidden control is not announced here.
void announce(QWidget& notification);

}  // namespace platform
