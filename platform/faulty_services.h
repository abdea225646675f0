// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

namespace platform {

/// Hides each of these services from Qt if it is faulty: the session bus, the accessibility bus, the session manager. A
/// service is faulty if its first answer takes more than 1.5 seconds or crashes a library. A session manager that
/// refuses the connection is also faulty. With a faulty service, Qt would crash, or wait for minutes before it shows a
/// window. Call this function before Qt starts, while the program has a single thread.
void hideFaultyServices();

}  // namespace platform
