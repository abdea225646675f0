// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/twips.h"

class QWidget;

namespace platform {

/// The full screen on which a window stands or stood last, in twips; the primary one before the window is first shown.
/// Left and Top are its origin on the desktop.
Box screenOf(const QWidget& window);

/// Keeps the fixed size of a window, in pixels of the layout, when it comes to a screen of another scale.
void keepSizeOnEveryScreen(QWidget& window);

}  // namespace platform
