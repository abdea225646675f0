// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "platform/picture.h"

namespace assets {

/// The picture with this file name, such as "ir.gif". Returns an empty picture if there is no such file.
platform::Picture picture(const QString& name);

}  // namespace assets
