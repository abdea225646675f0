// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QPoint>

class QMouseEvent;
class QWidget;

namespace platform {

/// The pixel of the layout that the mouse is on; on a finer screen it is on a part of one.
QPoint pixelUnder(const QMouseEvent& event);

/// Runs an action at each press on a control, with any button.
void onPress(QWidget& control, std::function<void(const QMouseEvent&)> action);

/// Runs an action each time the mouse moves over a control.
void onMove(QWidget& control, std::function<void()> action);

/// Runs an action at each click on a control: the left button pressed and released over it.
void onClick(QWidget& control, std::function<void()> action);

}  // namespace platform
