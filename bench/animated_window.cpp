// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Shows one animation, or a window that only repaints itself. bench/run.py compares their processor times.
//
// Usage: animated_window panel|about [hidden]
//        animated_window repainting WIDTH HEIGHT [hidden]
//
// With "hidden", the window is hidden after a second.

#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>

#include <QApplication>
#include <QTimer>

#include "about/about.h"
#include "bench/idle_host.h"
#include "platform/look.h"
#include "rules/deal.h"
#include "rules/group.h"
#include "rules/move.h"
#include "tests/mainwindow/world.h"

namespace {

// A game with two colours that leaves at most one ball: the seed of its deal, and its presses. Each press removes a
// group of the first colour, or of the other colour if there is none.
struct EndingGame {
    std::uint64_t seed = 0;
    std::vector<rules::CellIndex> presses;

    EndingGame(int NbCol, int NbLig) {
        do {
            ++seed;
        } while (!ends(NbCol, NbLig));
    }

  private:
    bool ends(int NbCol, int NbLig) {
        rules::Game game;
        rules::resizeBoard(game, NbCol, NbLig);
        rules::deal(game, 0, rules::Random(seed));
        presses.clear();
        IdleHost host;
        while (const auto cell = choice(game.board)) {
            presses.push_back(*cell);
            rules::playMove(game, *cell, host);
        }
        return game.Total <= 1;
    }

    static std::optional<rules::CellIndex> choice(const rules::Board& board) {
        std::optional<rules::CellIndex> found;
        for (int i = 0; board.contains(i); ++i) {
            const auto cell = static_cast<rules::CellIndex>(i);
            if (rules::isGroup(board, i) && (!found || board[cell] == rules::codes[0])) {
                found = cell;
            }
        }
        return found;
    }
};

// The main window after the end of a game, with the end-of-game panel.
struct EndedGame : mainwindow::World {
    EndedGame() {
        const EndingGame ending(25, 25);
        seed = ending.seed;
        screen = {0, 0, 48'000, 36'000};
        open();
        for (const rules::CellIndex i : ending.presses) {
            press(i);
        }
    }
};

// Repaints an empty area sixty times a second.
struct RepaintingWindow : QWidget {
    QTimer timer;
    int frames = 0;

    RepaintingWindow(int width, int height) : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
        setFixedSize(width, height);
        timer.setTimerType(Qt::PreciseTimer);
        timer.callOnTimeout(this, [this] {
            update();
            timer.setInterval(++frames % 3 == 0 ? 16 : 17);  // three frames in 50 ms
        });
        timer.start(16);
    }
};

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    platform::applyLook();
    std::unique_ptr<EndedGame> ended;
    std::unique_ptr<QWidget> other;
    const std::string_view which = argc > 1 ? argv[1] : "";
    if (which == "panel") {
        ended = std::make_unique<EndedGame>();
    } else if (which == "about") {
        other = std::make_unique<about::About>(platform::Box{0, 0, 15'000, 12'000}, rules::Random(1), [] {});
    } else if (which == "repainting" && argc > 3) {
        other = std::make_unique<RepaintingWindow>(std::atoi(argv[2]), std::atoi(argv[3]));
    } else {
        return 1;
    }
    QWidget& window = ended ? *ended->window : *other;
    window.show();
    if (std::strcmp(argv[argc - 1], "hidden") == 0) {
        QTimer::singleShot(std::chrono::seconds(1), &window, &QWidget::hide);
    }
    return QApplication::exec();
}
