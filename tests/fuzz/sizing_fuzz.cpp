// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Four lines: the texts of the two boxes, and the screen's width and height in twips.

#include <algorithm>

#include <QRegularExpression>

#include "mainwindow/board_size.h"
#include "rules/board.h"
#include "tests/fuzz/target.h"

namespace {

int plainNumber(const QString& text) {
    static const QRegularExpression start(QStringLiteral("^[ \t]*([-+]?[0-9]+)"));
    return static_cast<int>(std::clamp(start.match(text).captured(1).toDouble(), -1e6, 1e6));
}

// The largest number of cells, at most `count`, that fits in this length; but at least one.
int plainFit(int count, int length) {
    while (count > 1 && count * 300 + 600 > length) {
        --count;
    }
    return count;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QStringList lines = QString::fromStdString({data, data + size}).split(u'\n');
    const auto number = [&lines](qsizetype line) {
        const QString text = lines.value(line);
        law(mainwindow::leadingNumber(text.toStdU16String()) == plainNumber(text), "a text is the number at its start");
        return plainNumber(text);
    };
    const auto board = mainwindow::fittingSize({number(0), number(1)}, {number(2), number(3), 2670});
    mainwindow::BoardSize plain{plainFit(std::clamp(number(0), 8, 1000), number(2) - 2670),
                                plainFit(std::clamp(number(1), 14, 1000), number(3))};
    while (plain.NbCol * plain.NbLig > rules::maxCells) {
        int& longer = plain.NbLig > plain.NbCol ? plain.NbLig : plain.NbCol;
        --longer;
    }
    law(board == plain, "a board is clamped, then as large as the screen and the indices allow");
    return 0;
}
