// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/settle.h"

#include <random>

#include "tests/rules/board_text.h"

namespace rules {
namespace {

TEST(Settle, EachBallLandsOnceInItsOldOrderAndColour) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        Board before = emptyBoard(static_cast<int>(1 + random() % 9), static_cast<int>(1 + random() % 9));
        for (Code& cell : before.cells) {
            cell = random() % 2 == 0 ? Code::none : codes[random() % codes.size()];
        }
        Board after = before;
        const Landings landings = settle(after);
        Board landed = emptyBoard(before.NbCol, before.NbLig);
        CellIndex last = noCell;
        for (CellIndex i = 0; before.contains(i); ++i) {
            ASSERT_EQ(landings[i] == noCell, before[i] == Code::none)
                << "cell " << i << " of" << testing::PrintToString(before);
            if (landings[i] != noCell) {
                ASSERT_GT(landings[i], last) << "the ball of cell " << i << " of" << testing::PrintToString(before);
                last = landings[i];
                landed[last] = before[i];
            }
        }
        ASSERT_EQ(landed, after);
    }
}

}  // namespace
}  // namespace rules
