// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include "platform/controls.h"

namespace mainwindow {

/// The controls of the main window that are widgets, those of each container front to back.
std::span<const platform::ControlRow> controlsInWindow();
std::span<const platform::ControlRow> controlsInFrame1();
std::span<const platform::ControlRow> controlsInFrame2();

}  // namespace mainwindow
