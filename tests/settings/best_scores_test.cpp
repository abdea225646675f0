// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/best_scores.h"

#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "tests/settings/folder.h"

namespace {

struct BestScores : testing::Test {
    Folder folder;
    settings::Store store{folder.ini};
    settings::BestScores scores{store, 5};
};

TEST_F(BestScores, FollowAScoreThatPassesThemOrAnotherCopysThatIsAsHighAndAReset) {
    const std::vector<std::array<QString, 3>> rows = {
        {u"120"_s, u"100"_s, u"120"_s},
        {u"120.0"_s, u"120"_s, u"120.0"_s},
        {u"9"_s, u"10"_s, u"10"_s},
        {u"abc"_s, u"0"_s, u"0"_s},
        {u"5"_s, u"x"_s, u"5"_s},
        {u"5"_s, u" 6 "_s, u"6"_s},
        {u"inf"_s, u"5"_s, u"5"_s},
        {u"nan"_s, u"5"_s, u"5"_s},
        {u"1e999"_s, u"5"_s, u"5"_s},
        {u"0x10"_s, u"5"_s, u"5"_s},
        {u"12x"_s, u"5"_s, u"5"_s},
        {u"1,000"_s, u"5"_s, u"5"_s},
        {u""_s, u"1e15"_s, u"1000000000000000"_s},
    };
    for (const auto& [stored, score, best] : rows) {
        SCOPED_TRACE(testing::PrintToString(stored) + " and " + testing::PrintToString(score));
        folder.put("[init]\n0=" + stored.toUtf8() + "\n4=40\n");
        scores.load();
        scores.raise(0, score);
        EXPECT_EQ(scores.hsc(0), best);
        EXPECT_EQ(scores.hsc(4), u"40"_s);
        EXPECT_EQ(folder.bytes(), "[init]\n0=" + best.toUtf8() + "\n4=40\n");
        scores.reset(0);
        EXPECT_EQ(folder.bytes(), "[init]\n0=0\n4=40\n");
        scores.raise(0, u"2"_s);
        EXPECT_EQ(folder.bytes(), "[init]\n0=2\n4=40\n");
        folder.put("[init]\n0=130.0\n4=40\n");  // by another copy
        scores.raise(0, u"130"_s);
        EXPECT_EQ(scores.hsc(0), u"130.0"_s);
    }
}

TEST_F(BestScores, OtherLevelsHaveNone) {
    folder.put("[init]\n-1=8\n5=9\n");
    for (const int level : {-1, 5}) {
        scores.load(level);
        scores.raise(level, u"10"_s);
        scores.reset(level);
        EXPECT_EQ(scores.hsc(level), u"0"_s);
    }
    EXPECT_EQ(folder.bytes(), "[init]\n-1=8\n5=9\n");
}

}  // namespace
