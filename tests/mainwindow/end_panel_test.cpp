// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/mainwindow/world.h"

namespace mainwindow {

TEST(EndPanel, CoversTheBoardUntilItIsClickedOrLeftWithAKeyOrANewGameBegins) {
    World world;
    world.set("4", "1000");
    world.open("r r b");
    // The preview of another level's best score does not count.
    world.sound.meanwhile = [&] { QTest::mouseMove(world.control<QWidget>("Option1", 4)); };
    auto* panel = world.control<QWidget>("Frame1");
    const auto* ball = world.control<QWidget>("ip");
    const auto isBold = [&] { return world.control("sc")->font().bold() && world.control("Label3")->font().bold(); };
    const std::vector<std::tuple<const char*, const char*, std::function<void()>>> waysOut{
        {"a click", "Check1", [&] { QTest::mouseClick(panel, Qt::LeftButton); }},
        {"Escape", "Check1", [&] { world.key(Qt::Key_Escape); }},
        {"Space", "c", [&] { world.key(Qt::Key_Space); }},
        {"Return", "c", [&] { world.key(Qt::Key_Return); }},
        {"Enter", "c", [&] { world.key(Qt::Key_Enter); }},
        {"a new game", "c", [&] { world.command(0); }},
    };
    for (const auto& [what, focused, leave] : waysOut) {
        world.press(0);
        EXPECT_EQ(panel->geometry(), QRect(17, 17, 40, 94));
        EXPECT_EQ(world.control("Label1")->width(), panel->width());
        EXPECT_EQ(world.control("Label7")->width(), panel->width());
        EXPECT_TRUE(isBold());
        EXPECT_TRUE(QTest::qWaitFor([&, before = ball->pos()] { return ball->pos() != before; }));
        for (const char* child : {"Label1", "Label7", "ir"}) {
            QTest::mouseClick(world.control<QWidget>(child), Qt::LeftButton);
        }
        world.control<QWidget>("Check1")->setFocus();
        world.key(Qt::Key_Space);
        EXPECT_TRUE(world.control("Label7")->isVisible()) << "its labels, its balls and the switch do not close it";
        world.control<QWidget>(focused)->setFocus();
        leave();
        EXPECT_FALSE(panel->isVisible() || isBold()) << what;
        EXPECT_TRUE(world.cells()->hasFocus()) << what;
        world.command(0);
    }
}

}  // namespace mainwindow
