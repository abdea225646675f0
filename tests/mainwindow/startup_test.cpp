// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <QCheckBox>

#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

TEST(Startup, StoredValuesOfAnyKindGiveAGame) {
    struct Row {
        const char *Niveau, *Son;
        int level;
        bool sound;
    };
    const std::vector<Row> table{
        {"4", "0", 4, false},     {"5", "2", 0, true},     {"-1", "-1", 0, true},       {"abc", "abc", 0, true},
        {"1.6", "0.4", 2, false}, {"nan", "nan", 0, true}, {"1e300", "1e300", 0, true}, {"4.4", "", 4, true},
    };
    for (const Row& row : table) {
        World world;
        world.set("Niveau", row.Niveau);
        world.set("Son", row.Son);
        world.open();
        EXPECT_TRUE(world.control<QRadioButton>("Option1", row.level)->isChecked()) << row.Niveau;
        EXPECT_EQ(world.game().NbCoul, row.level + 2) << row.Niveau;
        EXPECT_EQ(world.control<QCheckBox>("Check1")->isChecked(), row.sound) << row.Son;
    }
}

}  // namespace
}  // namespace mainwindow
