// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "platform/controls.h"

namespace mainwindow {

/// The controls of the window, of the end-of-game panel `Frame1` and of the side panel `Frame2`, each front to back.
std::span<const platform::ControlRow> controlsInWindow();
std::span<const platform::ControlRow> controlsInFrame1();
std::span<const platform::ControlRow> controlsInFrame2();

}  // namespace mainwindow
