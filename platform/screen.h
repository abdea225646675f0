// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/twips.h"

class QWidget;

namespace platform {

/// The place and size, in twips, of the whole screen that shows a window or showed it last. Before the window is first
/// shown, this is the primary screen. Left and Top are the place of the screen on the desktop. All members are 0 if
/// there is no screen.
Box screenOf(const QWidget& window);

/// Keeps a window of fixed size at that size in layout pixels, even when it moves to a screen of another scale.
void keepSizeOnEveryScreen(QWidget& window);

}  // namespace platform
