// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

TEST(EndPanel, FillsTheWindowBesideTheSidePanel) {
    for (const char* board : {"r r b", "rrb"}) {
        World world;
        world.open(board);
        world.finish();
        const QRect panel = world.control<QWidget>("Frame1")->geometry();
        EXPECT_EQ(panel.topLeft(), QPoint(17, 17));
        EXPECT_NEAR(world.control<QWidget>("Frame2")->x() - (panel.right() + 1), 50 / 15.0, 1);
        EXPECT_NEAR(world.window->height() - (panel.bottom() + 1), 250 / 15.0, 1);
        EXPECT_EQ(world.control("Label1")->width(), panel.width());
        EXPECT_EQ(world.control("Label7")->width(), panel.width());
    }
}

TEST(EndPanel, LineShowsWhenTheBestScoreIsReached) {
    for (const auto& [best, shows] : {std::pair{"0", true}, {"4", true}, {"5", false}, {"1e9", false}, {"abc", true}}) {
        World world;
        world.set("0", best);
        world.set("4", "1000");
        world.open("r r b");
        // A preview of another level's best score does not count.
        world.sound.meanwhile = [&] { world.hover(world.control<QWidget>("Option1", 4)); };
        world.finish();
        EXPECT_EQ(world.control("Label7")->isVisible(), shows) << best;
        world.command(2);
        EXPECT_EQ(world.control("Label7")->isVisible(), shows) << "a reset leaves the panel as it is";
    }
}

TEST(EndPanel, StaysUntilItOrANewGameIsClickedAndRunsAgain) {
    World world;
    world.open("r r b");
    auto* panel = world.control<QWidget>("Frame1");
    const auto isBold = [&] { return world.control("sc")->font().bold() && world.control("Label3")->font().bold(); };
    for (int game = 0; game < 3; ++game) {
        world.finish();
        EXPECT_TRUE(isBold());
        for (const char* child : {"Label1", "Label7", "ir"}) {
            QTest::mouseClick(world.control<QWidget>(child), Qt::LeftButton);
            EXPECT_TRUE(panel->isVisible()) << child << " does not close the panel";
        }
        const auto* ball = world.control<QWidget>("ip");
        const QPoint before = ball->pos();
        EXPECT_TRUE(QTest::qWaitFor([&] { return ball->pos() != before; }));
        game == 0 ? QTest::mouseClick(panel, Qt::LeftButton, {}, {2, panel->height() - 2}) : world.command(0);
        EXPECT_FALSE(panel->isVisible() || isBold());
        world.command(0);
    }
}

}  // namespace
}  // namespace mainwindow
