// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Benchmarks of the largest board: a new game, a repaint, and, for comparison, a repaint that blends each ball.

#include <QPainter>
#include <benchmark/benchmark.h>

#include "assets/pictures.h"
#include "platform/look.h"
#include "tests/mainwindow/world.h"

namespace {

void waitUntilExposed(QWidget& widget) {
    widget.show();
    while (!widget.windowHandle()->isExposed()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

// The main window with the largest board, on a screen large enough for the window.
struct LargestWindow : mainwindow::World {
    LargestWindow() {
        set("Col", "217");
        set("Lig", "151");
        set("Niveau", "4");
        screen = {0, 0, 100'000, 100'000};
        open();
        waitUntilExposed(*window);
    }
};

// Paints as many balls as the largest board has cells, in all colours, and blends each ball with the background.
struct BlendedBoard : QWidget {
    std::vector<QPixmap> balls;

    explicit BlendedBoard(QSize size) {
        setFixedSize(size);
        for (const rules::Code code : rules::codes) {
            const QString file = QStringLiteral("i%1.gif").arg(QLatin1Char(static_cast<char>(code)));
            const platform::Picture ball = assets::picture(file);
            balls.push_back(ball.inPixels(ball.size()));
        }
        waitUntilExposed(*this);
    }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (int i = 0; i < rules::maxCells; ++i) {
            painter.drawPixmap(33 + 20 * (i / 151), 33 + 20 * (i % 151), balls[i % balls.size()]);
        }
    }
};

template <typename Widget>
void repaint(benchmark::State& state, Widget& widget) {
    for (auto _ : state) {
        widget.repaint();
        QCoreApplication::processEvents();
    }
}

void repaintBoard(benchmark::State& state) {
    const LargestWindow world;
    repaint(state, *world.window);
}
BENCHMARK(repaintBoard)->Name("repaint")->Unit(benchmark::kMillisecond);

void repaintBlended(benchmark::State& state) {
    BlendedBoard board(QSize(4578, 3087));
    repaint(state, board);
}
BENCHMARK(repaintBlended)->Name("blended repaint")->Unit(benchmark::kMillisecond);

void newGame(benchmark::State& state) {
    const LargestWindow world;
    for (auto _ : state) {
        world.window->ImBTN_Click(0);
        QCoreApplication::processEvents();
    }
    if (world.game().NBBoules != rules::maxCells) {
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
