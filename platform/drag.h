// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

class QMouseEvent;
class QWidget;

namespace platform {

/// Moves the window of a control with the pointer, from a press on the control until the release of that button. During
/// the drag, no control of the window receives the mouse. On Wayland the compositor moves the window.
void dragWindow(QWidget& control, const QMouseEvent& press);

}  // namespace platform
