#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

"""Builds and runs the benchmarks and prints ratios of their results, each with its bound.

Each ratio compares two values measured side by side in one run. A missed bound is printed, but run.py does not fail.
"""

import json
import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from Xlib import X, display

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "bench"


def build():
    steps = [
        ["bash", ROOT / "scripts" / "install.sh", "build", "bench"],
        ["cmake", "--preset", "release", "-B", BUILD, "-DZAMPOTINE_BENCH=ON"],
        ["cmake", "--build", BUILD],
    ]
    for step in steps:
        done = subprocess.run(step, cwd=ROOT, capture_output=True, text=True)
        if done.returncode != 0:
            sys.exit(f"bench: failed: {' '.join(map(str, step))}\n{done.stdout}{done.stderr}")


class VirtualDisplay:
    """An X display without a window manager, because a window manager would affect the launch times."""

    def __enter__(self):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "5120x3200x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as number:
            self.name = ":" + number.readline().strip()
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()


def google_benchmark(program, environment):
    """Runs a benchmark program and returns the median time of each benchmark, in seconds.

    The time is per item if the benchmark counts items, and per iteration if it does not.
    """
    done = subprocess.run(
        [BUILD / "bin" / program, "--benchmark_format=json", "--benchmark_repetitions=7",
         "--benchmark_min_time=0.2", "--benchmark_enable_random_interleaving=true"],
        env=environment, capture_output=True, text=True, check=True)
    return {
        row["run_name"]: 1 / row["items_per_second"] if "items_per_second" in row
        else row["real_time"] * {"ns": 1e-9, "ms": 1e-3}[row["time_unit"]]
        for row in json.loads(done.stdout)["benchmarks"]
        if row.get("aggregate_name") == "median"
    }


def launch(program, environment):
    """Starts a program. Returns its process, and the seconds from its start until its window was mapped."""
    screen = display.Display(environment["DISPLAY"])
    screen.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
    screen.sync()
    start = time.perf_counter()
    process = subprocess.Popen([BUILD / "bin" / program], env=environment, stderr=subprocess.DEVNULL)
    while True:
        event = screen.next_event()
        if event.type == X.MapNotify and event.window.get_geometry().width > 100:
            elapsed = time.perf_counter() - start
            screen.close()
            return process, elapsed


def proportional_memory(process):
    """The proportional set size (PSS) of a process in MB."""
    rollup = Path(f"/proc/{process.pid}/smaps_rollup").read_text()
    return next(int(line.split()[1]) for line in rollup.splitlines() if line.startswith("Pss:")) / 1024


def processor_time(process):
    """The processor time of a process in seconds. The time of threads that have ended is not included."""
    tasks = Path(f"/proc/{process.pid}/task").iterdir()
    return sum(int((task / "schedstat").read_text().split()[0]) for task in tasks) / 1e9


def used_within(seconds, *processes):
    """Waits for a number of seconds. Returns the seconds of processor time that each process used meanwhile."""
    before = [processor_time(process) for process in processes]
    time.sleep(seconds)
    return [processor_time(process) - start for process, start in zip(processes, before)]


def print_ratio(what, measured, base, bound, unit="s", factor=1.0):
    ratio = measured / base
    verdict = "holds" if ratio <= bound else "MISSED"
    print(f"{what:<64} {measured * factor:9.3f} / {base * factor:9.3f} {unit:<3} = {ratio:7.3f}"
          f"  (at most {bound:g}: {verdict})", flush=True)


def rules(environment):
    times = google_benchmark("rules_bench", environment)
    print_ratio("settle, 32 x 1000, per cell: rules of the game / plain rules",
                times["settle/32/1000"], times["settle plain/32/1000"], 0.01, "ns", 1e9)
    for name in ("settle", "remove"):
        print_ratio(f"{name}, per cell: 217 x 151 / 25 x 25",
                    times[f"{name}/217/151"], times[f"{name}/25/25"], 2, "ns", 1e9)


def window(environment):
    times = google_benchmark("window_bench", environment)
    for name, bound in (("repaint", 0.5), ("new game", 3)):
        print_ratio(f"217 x 151: {name} / blended repaint", times[name], times["blended repaint"], bound, "ms", 1e3)


def launches(environment, rounds=41):
    programs = ("zampotine", "empty_window")
    elapsed = {name: [] for name in programs}
    for _ in range(rounds):
        for name in programs:
            process, seconds = launch(name, environment)
            elapsed[name].append(seconds)
            process.terminate()
            process.wait()
    game, empty = (statistics.median(elapsed[name][1:]) for name in programs)
    print_ratio(f"time until window mapped, median of {rounds - 1}: game / empty window", game, empty, 1.3, "ms", 1e3)


def memory_and_idleness(environment):
    game, _ = launch("zampotine", environment)
    empty, _ = launch("empty_window", environment)
    time.sleep(2)
    print_ratio("memory (PSS) two seconds after launch: game / empty window",
                proportional_memory(game), proportional_memory(empty), 1.6, "MB")
    empty.terminate()
    time.sleep(6)
    print(f"processor time of the idle game in 10 s: {used_within(10, game)[0]:.2f} s")
    subprocess.run(["xdotool", "mousemove", "2400", "1500", "click", "--repeat", "5", "--delay", "400", "1"],
                   env=environment, check=True)
    time.sleep(10)
    print(f"processor time of the idle game in 10 s, 10 s after moves with sound: {used_within(10, game)[0]:.2f} s")
    game.terminate()
    game.wait()


def animations(environment, seconds=20):
    def start(*arguments):
        return subprocess.Popen([BUILD / "bin" / "animated_window", *arguments], env=environment)

    for name, *size in (("about", "413", "344"), ("panel", "520", "534")):
        processes = start(name), start("repainting", *size), start(name, "hidden")
        time.sleep(3)
        animated, repainting, hidden = used_within(seconds, *processes)
        for process in processes:
            process.terminate()
            process.wait()
        print_ratio(f"{name}, processor time in {seconds} s: animation / repainting window",
                    animated, repainting, 1.5, "ms", 1e3)
        print(f"{name}, processor time in {seconds} s while hidden: {hidden:.2f} s")


def main():
    build()
    with VirtualDisplay() as screen, tempfile.TemporaryDirectory() as home:
        environment = os.environ | {
            "DISPLAY": screen.name, "QT_QPA_PLATFORM": "xcb", "XDG_CONFIG_HOME": home, "XDG_RUNTIME_DIR": home,
            "DBUS_SESSION_BUS_ADDRESS": "disabled:", "SDL_AUDIODRIVER": "dummy"}
        for measure in (rules, window, launches, memory_and_idleness, animations):
            measure(environment)


if __name__ == "__main__":
    main()
