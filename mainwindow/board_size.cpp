// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/board_size.h"

#include <algorithm>

#include "mainwindow/board/geometry.h"
#include "rules/board.h"

namespace mainwindow {
namespace {

constexpr int margin = 600;  // The cells leave this many twips of the screen free.

int cellsWithin(int length) {
    return std::max((length - margin) / Pas, 1);
}

}  // namespace

int leadingNumber(std::u16string_view text) {
    constexpr int ceiling = 1'000'000;
    const auto start = text.find_first_not_of(u" \t");
    text.remove_prefix(std::min(start, text.size()));
    const bool negative = text.starts_with(u'-');
    if (negative || text.starts_with(u'+')) {
        text.remove_prefix(1);
    }
    int number = 0;
    for (const char16_t character : text) {
        if (character < u'0' || character > u'9') {
            break;
        }
        number = std::min(number * 10 + (character - u'0'), ceiling);
    }
    return negative ? -number : number;
}

BoardSize fittingSize(BoardSize request, const Space& space) {
    int NbCol = std::min(std::clamp(request.NbCol, 8, 1000), cellsWithin(space.screenWidth - space.panelWidth));
    int NbLig = std::min(std::clamp(request.NbLig, 14, 1000), cellsWithin(space.screenHeight));
    while (NbCol * NbLig > rules::maxCells) {
        int& larger = NbCol >= NbLig ? NbCol : NbLig;
        --larger;
    }
    return {NbCol, NbLig};
}

}  // namespace mainwindow
