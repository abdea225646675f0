// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "platform/artwork.h"

namespace assets {

/// A picture of the program by its file name ("ir.gif"); none if there is no such file.
platform::Artwork picture(const QString& name);

}  // namespace assets
