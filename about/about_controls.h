// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "platform/controls.h"

namespace about {

/// The controls of the About window, ordered from front to back.
std::span<const platform::ControlRow> controls();

}  // namespace about
