// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace platform {

/// Opens a mail address ("mailto:…") or a web address ("https://…") in the player's mail program or browser. Blanks in
/// the address are percent-encoded. Nothing happens if there is no such program.
void openAddress(const QString& address);

}  // namespace platform
