// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Four lines: the texts of the two boxes, and the screen's width and height in twips.

#include <algorithm>
#include <string>

#include <QStringList>

#include "mainwindow/board_size.h"
#include "rules/board.h"
#include "tests/fuzz/target.h"

using mainwindow::BoardSize;

namespace {

int plainNumber(const std::u16string& text) {
    std::string ascii;
    for (const char16_t c : text) {
        ascii += c < 0x80 && (c < u'\n' || c > u'\r') ? static_cast<char>(c) : 'x';  // line breaks are no blanks here
    }
    return static_cast<int>(std::clamp(std::strtoll(ascii.c_str(), nullptr, 10), -1'000'000LL, 1'000'000LL));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QStringList lines = QString::fromStdString({data, data + size}).split(u'\n');
    const auto number = [&lines](qsizetype line) {
        const std::u16string text = lines.value(line).toStdU16String();
        law(mainwindow::leadingNumber(text) == plainNumber(text), "a text is the number at its start");
        return plainNumber(text);
    };
    const mainwindow::Space space{number(2), number(3), 2670};
    const BoardSize board = mainwindow::fittingSize({number(0), number(1)}, space);

    const auto fit = [](int count, int least, int length) {
        for (count = std::clamp(count, least, 1000); count > 1 && count * 300 + 600 > length;) {
            --count;
        }
        return count;
    };
    BoardSize plain{fit(number(0), 8, space.screenWidth - space.panelWidth), fit(number(1), 14, space.screenHeight)};
    while (plain.NbCol * plain.NbLig > rules::maxCells) {
        --(plain.NbLig > plain.NbCol ? plain.NbLig : plain.NbCol);
    }
    law(board == plain, "a board is clamped, then as large as the screen and the indices allow");
    return 0;
}
