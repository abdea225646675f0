// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/turns.h"

#include <algorithm>
#include <utility>

namespace mainwindow {
namespace {

bool isPress(const Request& request) {
    return std::holds_alternative<Press>(request);
}

bool isQuit(const Request& request) {
    return request == Request(Command::quit);
}

}  // namespace

void Turns::end() {
    moving = false;
    // A kept request may be a move, which calls end() again. Only the outer call carries out the kept requests.
    if (std::exchange(isRunningKept, true)) {
        return;
    }
    while (!kept.empty()) {
        const Request request = kept.front();
        kept.pop_front();
        if (!closing || !isPress(request)) {
            run(request);
        }
    }
    isRunningKept = false;
}

void Turns::perform(Request request) {
    if (!moving) {
        run(request);
    } else if (!isPress(request) || std::ranges::count_if(kept, isPress) < mostPresses) {
        closing = closing || isQuit(request);
        kept.insert(std::ranges::find(kept, Request(Command::help)), request);
    }
}

void Turns::follow(const rules::Landings& landings) {
    for (Request& request : kept) {
        if (auto* press = std::get_if<Press>(&request)) {
            press->cell = landings[press->cell];
        }
    }
    std::erase_if(kept, [](const Request& request) { return request == Request(Press{rules::noCell}); });
}

void Turns::dropPresses() {
    std::erase_if(kept, isPress);
}

void Turns::run(Request request) {
    if (isQuit(request)) {
        kept.clear();
    }
    carryOut(request);
}

}  // namespace mainwindow
