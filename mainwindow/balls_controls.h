// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "platform/controls.h"

namespace mainwindow {

/// The controls directly in the main window, in the end-of-game panel `Frame1`, and in the side panel `Frame2`. Each
/// table is ordered from front to back.
std::span<const platform::ControlRow> controlsInWindow();
std::span<const platform::ControlRow> controlsInFrame1();
std::span<const platform::ControlRow> controlsInFrame2();

}  // namespace mainwindow
