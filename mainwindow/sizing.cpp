// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/sizing.h"

#include <algorithm>

#include "mainwindow/boardgeometry.h"
#include "rules/board.h"

namespace mainwindow {
namespace {

// What the fit leaves free beside the cells, in twips.
constexpr int margin = 600;

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

BoardSize fitBoard(BoardSize request, const Room& room) {
    int NbCol = std::min(std::clamp(request.NbCol, 8, 1000), cellsWithin(room.screenWidth - room.panelWidth));
    int NbLig = std::min(std::clamp(request.NbLig, 14, 1000), cellsWithin(room.screenHeight));
    while (NbCol * NbLig > rules::maxCells) {
        --(NbCol >= NbLig ? NbCol : NbLig);
    }
    return {NbCol, NbLig};
}

}  // namespace mainwindow
