// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// A new game on the largest board, until it is painted, beside one repaint of the same board.

#include <QApplication>
#include <QWindow>
#include <benchmark/benchmark.h>

#include "bench/quiet_window.h"
#include "platform/look.h"
#include "rules/random.h"

namespace {

// The window on a screen that holds the largest board, shown and painted.
struct LargestWindow : QuietWindow {
    LargestWindow() : QuietWindow(217, 151, {0, 0, 100'000, 100'000}, rules::seedFromClock) {
        (*this)->show();
        while (!(*this)->windowHandle()->isExposed()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
};

void repaint(benchmark::State& state) {
    LargestWindow window;
    for (auto _ : state) {
        window->repaint();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(repaint)->Name("repaint")->Unit(benchmark::kMillisecond);

void newGame(benchmark::State& state) {
    LargestWindow window;
    for (auto _ : state) {
        window->ImBTN_Click(0);
        QCoreApplication::processEvents();
    }
    if (window->currentGame().NBBoules != rules::maxCells) {
        state.SkipWithError("not the largest board");
    }
}
BENCHMARK(newGame)->Name("new game")->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char* argv[]) {
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    platform::applyLook();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
