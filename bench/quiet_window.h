// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "mainwindow/balls.h"

/// A main window that plays no sound, makes nobody wait, and leaves the player's settings alone.
class QuietWindow {
  public:
    /// Opens it on a board of so many columns and rows, on a screen of so many twips.
    QuietWindow(int NbCol, int NbLig, platform::Box screen, std::function<std::uint64_t()> seed) {
        using namespace Qt::StringLiterals;
        store.write(u"init"_s, u"Col"_s, QString::number(NbCol));
        store.write(u"init"_s, u"Lig"_s, QString::number(NbLig));
        window.emplace(mainwindow::Surroundings{
            store,
            silence,
            std::move(seed),
            [screen](const QWidget&) { return screen; },
            [](std::chrono::microseconds) {},
        });
    }

    mainwindow::balls& operator*() { return *window; }
    mainwindow::balls* operator->() { return &*window; }

  private:
    struct Silence : platform::Sound {
        void warmUp() override {}
        void play(const std::string&) override {}
    };

    settings::Store store{QString()};
    Silence silence;
    std::optional<mainwindow::balls> window;
};
