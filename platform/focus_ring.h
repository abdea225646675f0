// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

class QPainter;
class QRect;

namespace platform {

/// Distance from the edge of a control to the outer edge of its focus ring, in layout pixels.
inline constexpr int focusRingWidth = 2;

/// From now on, a ring surrounds the control that has the keyboard focus, if it is an option, a check box, a text box
/// or a label. The ring appears when the player presses a key, and disappears when the player presses a mouse button.
/// Call it once, after the application has been created.
void showFocusRing();

/// Draws a focus ring. Its outer edge is the edge of `area`, in layout pixels.
void drawFocusRing(QPainter& painter, const QRect& area);

}  // namespace platform
