// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

TEST(NewGame, WindowAfterASecondGameIsThatOfAFirstOne) {
    World fresh;
    fresh.set("Col", "12");
    fresh.set("Lig", "16");
    fresh.open();
    World world;
    world.open();
    for (const char* size : {"40", "8"}) {  // from a larger board, then from a smaller one
        world.type(size, size);
        world.command(0);
        EXPECT_NE(world.window->size(), fresh.window->size());
        world.type("12", "16");
        world.command(0);
        EXPECT_EQ(world.window->grab().toImage(), fresh.window->grab().toImage()) << "after " << size;
    }
}

TEST(NewGame, LevelTakesEffectAtTheDealAndResetMeansTheLevelPlayed) {
    World world;
    world.set("1", "50");
    world.set("3", "70");
    world.set("Niveau", "1");
    world.open();
    EXPECT_EQ(world.text("Label4"), "50");
    world.select(3);
    EXPECT_EQ(world.stored("Niveau"), "3");
    EXPECT_EQ(world.game().NbCoul, 3);
    world.command(2);
    EXPECT_EQ(world.stored("1"), "0");
    EXPECT_EQ(world.stored("3"), "70");
    EXPECT_EQ(world.text("Label4"), "0");
    EXPECT_EQ(world.text("hsc", 1), "0");
    world.command(0);
    EXPECT_EQ(world.game().NbCoul, 5);
    EXPECT_EQ(world.text("Label4"), "70");
}

TEST(NewGame, ClickIsALeftPressAndReleaseOnTheSameButton) {
    World world;
    world.open();
    world.seed = 7;
    const rules::Board before = world.game().board;
    auto* picture = world.control<QWidget>("ImBTN", 0);
    QTest::mouseClick(picture, Qt::RightButton);
    QTest::mousePress(picture, Qt::LeftButton);
    QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(-20, 5));
    QTest::mouseRelease(picture, Qt::LeftButton);
    EXPECT_EQ(world.game().board, before);
    QTest::mouseClick(picture, Qt::LeftButton);
    EXPECT_NE(world.game().board, before);
}

}  // namespace
}  // namespace mainwindow
