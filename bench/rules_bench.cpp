// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Benchmarks of the rules. bench/run.py prints the ratios of their times.

#include <benchmark/benchmark.h>

#include "bench/idle_host.h"
#include "rules/move.h"
#include "rules/settle.h"
#include "tests/rules/plain.h"

namespace {

using rules::Board;
using rules::Code;

// A board in which every third cell and every fifth column is empty.
Board holedBoard(int NbCol, int NbLig) {
    Board board = rules::emptyBoard(NbCol, NbLig);
    for (std::size_t i = 0; i < board.cells.size(); ++i) {
        const bool hole = i % 3 == 0 || (i / static_cast<std::size_t>(NbLig)) % 5 == 0;
        board.cells[i] = hole ? Code::none : rules::codes[i % rules::codes.size()];
    }
    return board;
}

template <auto settle>
void settling(benchmark::State& state) {
    const Board before = holedBoard(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    Board board = before;
    for (auto _ : state) {
        board.cells = before.cells;
        settle(board);
        benchmark::DoNotOptimize(board.cells.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(board.cells.size()));
}
BENCHMARK(settling<plain::settle>)->Name("settle plain")->Args({32, 1000});
BENCHMARK(settling<rules::settle>)->Name("settle")->Args({32, 1000})->Args({25, 25})->Args({217, 151});

void removing(benchmark::State& state) {
    Board board = rules::emptyBoard(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    IdleHost host;
    for (auto _ : state) {
        std::ranges::fill(board.cells, Code::red);
        int S = 0;
        rules::efface(board, static_cast<rules::CellIndex>(board.cells.size() / 2), Code::red, S, host);
        benchmark::DoNotOptimize(S);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(board.cells.size()));
}
BENCHMARK(removing)->Name("remove")->Args({25, 25})->Args({217, 151});

}  // namespace

BENCHMARK_MAIN();
