// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

namespace platform {

/// Hides the session bus, the accessibility bus or the session manager from this program if the first answer of that
/// service takes more than 1.5 seconds or crashes a library. Also hides a session manager that refuses the connection.
/// Otherwise Qt would crash, or wait for minutes before it shows a window. Call it before Qt starts, while the program
/// has a single thread.
void hideFaultyServices();

}  // namespace platform
