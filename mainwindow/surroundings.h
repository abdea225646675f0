// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "platform/sound/sound.h"
#include "platform/twips.h"
#include "settings/store.h"

class QWidget;

namespace mainwindow {

/// Everything that the main window needs from outside. A test supplies its own.
struct Surroundings {
    settings::Store& store;
    platform::Sound& sound;
    std::function<std::uint64_t()> seed;                   ///< a new seed for each deal
    std::function<std::uint64_t()> animationSeed;          ///< a new seed for the bouncing balls
    std::function<platform::Box(const QWidget&)> screen;   ///< the area of the screen that shows a window, in twips
    std::function<void(std::chrono::microseconds)> pause;  ///< handles events for a duration, then returns
};

}  // namespace mainwindow
