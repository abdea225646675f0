// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

class QMouseEvent;
class QWidget;

namespace platform {

/// Moves the window of a control with the pointer, from a press on the control until that button is released. The
/// control hears nothing of the mouse meanwhile. On Wayland the compositor moves the window.
void dragWindow(QWidget& control, const QMouseEvent& press);

}  // namespace platform
