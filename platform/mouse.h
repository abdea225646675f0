// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QMouseEvent;
class QWidget;

namespace platform {

/// Runs an action at each press on a control, with any button.
void onPress(QWidget& control, std::function<void(const QMouseEvent&)> action);

/// Runs an action each time the mouse moves over a control.
void onMove(QWidget& control, std::function<void()> action);

/// Runs an action at each click on a control: the left button pressed and released over it.
void onClick(QWidget& control, std::function<void()> action);

}  // namespace platform
