// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

namespace platform {

/// Hides the session bus, the accessibility bus and the session manager from this program if they do not answer within
/// 1.5 seconds, or if what they answer makes a library fail. Otherwise the toolkit would wait for them before it shows
/// a window, for minutes or for ever, or crash. Call it before the toolkit starts, while the program has a single
/// thread.
void hideSilentServices();

}  // namespace platform
