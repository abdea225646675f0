// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QPoint>

class QMouseEvent;
class QWidget;

namespace platform {

/// The layout pixel under the mouse pointer. At scales above 100 %, a layout pixel covers more than one screen pixel.
QPoint pixelUnder(const QMouseEvent& event);

/// Runs an action at each press of any mouse button on a control.
void onPress(QWidget& control, std::function<void(const QMouseEvent&)> action);

/// Runs an action each time the mouse moves over a control.
void onMove(QWidget& control, std::function<void()> action);

/// Runs an action at each click on a control. A click is a press and a release of the left button, both on the control.
void onClick(QWidget& control, std::function<void()> action);

}  // namespace platform
