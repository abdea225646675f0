// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace platform {

/// Opens a mail or web address ("mailto:…", "https://…") with the player's program for it, and percent-encodes its
/// blanks. Nothing happens if there is no such program.
void openAddress(const QString& address);

}  // namespace platform
