// A new game on the largest board, until it is painted, beside one repaint of the same board.

#include <QApplication>
#include <QWindow>
#include <benchmark/benchmark.h>

#include "mainwindow/balls.h"
#include "platform/look.h"
#include "rules/random.h"

using namespace Qt::StringLiterals;

namespace {

struct Silence : platform::Sound {
    void warmUp() override {}
    void play(const std::string&) override {}
};

// The window on a screen that holds the largest board, shown and painted.
class LargestWindow {
  public:
    LargestWindow() {
        store.write(u"init"_s, u"Col"_s, u"217"_s);
        store.write(u"init"_s, u"Lig"_s, u"151"_s);
        window.emplace(mainwindow::Surroundings{
            store,
            silence,
            rules::seedFromClock,
            [](const QWidget&) {
                return platform::Box{0, 0, 100'000, 100'000};
            },
            [](std::chrono::microseconds) {},
        });
        window->show();
        while (!window->windowHandle()->isExposed()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    mainwindow::balls& operator*() { return *window; }

  private:
    settings::Store store{QString()};
    Silence silence;
    std::optional<mainwindow::balls> window;
};

void repaint(benchmark::State& state) {
    LargestWindow window;
    for (auto _ : state) {
        (*window).repaint();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(repaint)->Name("repaint")->Unit(benchmark::kMillisecond);

void newGame(benchmark::State& state) {
    LargestWindow window;
    for (auto _ : state) {
        (*window).ImBTN_Click(0);
        QCoreApplication::processEvents();
    }
    if ((*window).currentGame().NBBoules != rules::maxCells) {
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
