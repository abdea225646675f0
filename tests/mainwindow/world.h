// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <QApplication>
#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

#include "mainwindow/balls.h"
#include "mainwindow/board/board_widget.h"
#include "platform/controls.h"
#include "platform/text_box.h"
#include "rules/deal.h"
#include "rules/group.h"
#include "tests/rules/board_text.h"

namespace mainwindow {

using namespace Qt::StringLiterals;
using rules::boardOf;

struct RecordedSound : platform::Sound {
    int warmUps = 0;
    std::vector<std::string> played;
    std::function<void()> meanwhile = [] {};

    void warmUp() override { ++warmUps; }
    void play(const std::string& name) override {
        played.push_back(name);
        meanwhile();
    }
};

/// A main window with its settings in memory, a chosen seed, a chosen screen, and a clock that does not wait.
struct World {
    settings::Store store{QString()};
    RecordedSound sound;
    std::uint64_t seed = 1;
    std::function<std::uint64_t()> nextSeed = [this] { return seed; };
    platform::Box screen{0, 0, 24'000, 18'000};
    int pauses = 0;
    std::function<void()> inPause = [] {};
    std::unique_ptr<balls> window;

    /// Opens the window. If a board of two colours is given, the screen has room for just this board, and the seed is
    /// one that deals it.
    void open(const char* board = nullptr) {
        if (board != nullptr) {
            arrange(boardOf(board));
        }
        window = std::make_unique<balls>(Surroundings{
            store,
            sound,
            nextSeed,
            rules::seedFromClock,
            [this](const QWidget&) { return screen; },
            [this](std::chrono::microseconds) {
                ++pauses;
                inPause();
            },
        });
        window->show();
        window->grab();  // the first painting completes labels and boxes
    }

    const rules::Game& game() const { return window->currentGame(); }
    BoardWidget* cells() const { return control<BoardWidget>("c"); }
    std::string stored(const char* key) const {
        return store.read(u"init"_s, QLatin1String(key), u"absent"_s).toStdString();
    }
    void set(const char* key, const char* text) { store.write(u"init"_s, QLatin1String(key), QLatin1String(text)); }

    template <typename Widget = QLabel>
    Widget* control(const char* name, int index = -1) const {
        return platform::control<Widget>(*window, name, index);
    }
    std::string text(const char* name, int index = -1) const { return control(name, index)->text().toStdString(); }
    std::string box(int index) const { return control<platform::TextBox>("Text1", index)->text().toStdString(); }
    void type(const char* Col, const char* Lig) const {
        control<platform::TextBox>("Text1", 1)->setText(QString::fromUtf8(Col));
        control<platform::TextBox>("Text1", 0)->setText(QString::fromUtf8(Lig));
    }
    void command(int index) const { QTest::mouseClick(control("LabBtn", index), Qt::LeftButton); }
    void select(int level) const { control<QRadioButton>("Option1", level)->click(); }

    /// Presses on cell i where the player sees it.
    void press(int i, Qt::MouseButton button = Qt::LeftButton) const {
        const auto [col, row] = game().board.positionOf(static_cast<rules::CellIndex>(i));
        QTest::mousePress(cells(), button, {}, {3 + 20 * col + 10, 3 + 20 * row + 10});
    }

    /// Presses a group; false if there is none.
    bool pressAnyGroup(std::mt19937& chance) const {
        std::vector<int> groups;
        for (int i = 0; game().board.contains(i); ++i) {
            groups.insert(groups.end(), rules::isGroup(game().board, i) ? 1 : 0, i);
        }
        if (!groups.empty()) {
            press(groups[chance() % groups.size()], static_cast<Qt::MouseButton>(1U << chance() % 3));
        }
        return !groups.empty();
    }

    /// The About window while it shows, else the main window.
    QWidget* shown() const {
        const auto windows = QApplication::topLevelWidgets();
        const auto isAbout = [this](const QWidget* it) { return it->isVisible() && it != window.get(); };
        const auto about = std::ranges::find_if(windows, isAbout);
        return about == windows.end() ? window.get() : *about;
    }

    /// Types a key into the control with the focus.
    void key(QKeyCombination key) const {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        QTest::keyClick(window->focusWidget(), key.key(), key.keyboardModifiers());
    }

    /// Moves the pointer as the window system does, so that Qt finds the control below it.
    void hover(QPoint place) const { QTest::mouseMove(window->windowHandle(), place); }
    /// Moves the pointer near the corner of a control, where nothing else covers it.
    void hover(const QWidget* control) const {
        hover(control->mapTo(window.get(), QPoint(control->width() - 3, control->height() - 3)));
    }

  private:
    void arrange(const rules::Board& board) {
        screen.Width = board.NbCol * 300 + 600 + 2670;
        screen.Height = board.NbLig * 300 + 600;
        rules::Game dealt;
        while (dealt.board != board) {
            ASSERT_LT(seed, 100'000) << "no deal looks like\n" << rules::print(board);
            rules::resizeBoard(dealt, board.NbCol, board.NbLig);
            rules::deal(dealt, 0, rules::Random(++seed));
        }
    }
};

}  // namespace mainwindow
