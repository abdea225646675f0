// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/ini_file.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/settings/folder.h"

using namespace settings;

namespace {

TEST(IniFile, ReadsWhatAPersonMayWrite) {
    const std::vector<std::pair<QByteArray, QString>> rows = {
        {"\xEF\xBB\xBF[init]\nCol=30", u"30"_s},
        {"; ours\r\n\r\n  [ init ] \r\n\t Col \t=  30 \r\n", u"30"_s},
        {"[init]\nCol=1\nCol=2\n[other]\nCol=3\n[init]\nCol=4\n", u"4"_s},
        {"[init]\nCol=30\nLi", u"30"_s},
        {"[init]\nCol=\n", u""_s},
        {"Col=1\n[Init]\nCol=2\n[init\nCol=3\n", none},
        {"[init]\n;Col=1\n#Col=2\ncol=3\nCol\n", none},
        {"\xEF\xBB\xBF# mine", none},
        {"[init]\nCol==a=b;c#d\n", u"=a=b;c#d"_s},
        {"[init]\nCol=C:\\new\\u41\n", u"C:\\new\\u41"_s},
        {"[init]\nCo\\u006c=\\\\n\\u000a\\u0020\n", u"\\n\n "_s},
    };
    for (const auto& [file, value] : rows) {
        EXPECT_TRUE(isIniFile(file)) << testing::PrintToString(file);
        EXPECT_EQ(valueIn(file, init, col).value_or(none), value) << testing::PrintToString(file);
    }
}

TEST(IniFile, KeepsItsLineBreaks) {
    EXPECT_EQ(withValue("[init]\r\nCol=1\r\nLig=2", init, col, u"30"_s), "[init]\r\nCol=30\r\nLig=2");
}

TEST(IniFile, IsNoGarbage) {
    for (const QByteArray& file : {"\n"_ba, "\xEF\xBB\xBF"_ba, "[init]\nCol=\xE9\n"_ba, "[init]\n\0"_ba, "[ini"_ba}) {
        EXPECT_FALSE(isIniFile(file)) << testing::PrintToString(file);
    }
}

}  // namespace
