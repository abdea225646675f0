// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

namespace platform {

/// Hides the session bus, the accessibility bus and the session manager from this program if their first answer takes
/// more than 1.5 seconds or crashes a library, and a session manager that refuses the connection, too. Otherwise the
/// toolkit would crash, or wait for minutes before it shows a window. Call it before the toolkit starts, while the
/// program has a single thread.
void hideFaultyServices();

}  // namespace platform
