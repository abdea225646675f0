// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>

namespace platform {

/// The area of a focus ring is the area of its control with this margin at the left and right, and at the top and
/// bottom, in layout pixels.
inline constexpr QSize focusRingMargin{2, 4};

/// From now on, a ring surrounds the control that has the keyboard focus, if it is an option, a check box, a text box
/// or a label. The ring appears when the player presses a key, and disappears when the player presses a mouse button.
/// Call it once, after the application has been created.
void showFocusRing();

}  // namespace platform
