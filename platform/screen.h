// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/twips.h"

class QWidget;

namespace platform {

/// The full screen that shows a window, or showed it last, in twips; the primary screen before the window is first
/// shown. Left and Top are its origin on the desktop.
Box screenOf(const QWidget& window);

/// Keeps the fixed size of a window, in layout pixels, when the window moves to a screen of another scale.
void keepSizeOnEveryScreen(QWidget& window);

}  // namespace platform
