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
    const std::vector<std::array<const char*, 3>> rows = {
        {"120", "100", "120"}, {"120.0", "120", "120.0"}, {"9", "10", "10"},      {"5", " 6 ", "6"},
        {"5", "x", "5"},       {"abc", "0", "0"},         {"inf", "5", "5"},      {"nan", "5", "5"},
        {"1e999", "5", "5"},   {"0x10", "5", "5"},        {"", "1e6", "1000000"}, {"1,000", "5", "5"},
    };
    for (const auto& [stored, score, best] : rows) {
        SCOPED_TRACE(testing::Message() << stored << " and " << score);
        folder.put("[init]\n0="_ba + stored + "\n4=40\n");
        scores.load();
        scores.raise(0, QLatin1StringView(score));
        EXPECT_EQ(scores.hsc(0), QLatin1StringView(best));
        EXPECT_EQ(scores.hsc(4), u"40"_s);
        EXPECT_EQ(folder.bytes(), "[init]\n0="_ba + best + "\n4=40\n");
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
