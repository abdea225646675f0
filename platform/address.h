// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace platform {

/// Opens a mail or web address ("mailto:…", "https://…") with the player's program for it; blanks in it are
/// percent-encoded. If there is none, nothing happens.
void openAddress(const QString& address);

}  // namespace platform
