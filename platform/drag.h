// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

class QMouseEvent;
class QWidget;

namespace platform {

/// Moves the window of a control along with the pointer. `press` is the press on the control that starts the drag. The
/// drag ends when the player releases the button of this press, or when the control is hidden. During the drag, no
/// control of the window receives mouse events. On Wayland, the compositor does all this instead.
void dragWindow(QWidget& control, const QMouseEvent& press);

}  // namespace platform
