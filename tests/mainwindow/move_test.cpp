// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QCheckBox>
#include <QTimer>

#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

constexpr auto columns = "rb rb rb";  // a column of each colour

TEST(Move, SoundDeviceOpensWhileTheBallsVanishButNeverInVain) {
    World world;
    world.open("r r b");
    world.press(2);
    EXPECT_EQ(world.sound.warmUps, 0) << "a lone ball makes no sound";
    world.inPause = [&] { EXPECT_EQ(world.sound.warmUps, 1); };
    world.press(0);
    EXPECT_EQ(world.sound.warmUps, 1);
    World silent;
    silent.set("Son", "0");
    silent.open("r r b");
    silent.press(0);
    EXPECT_EQ(silent.sound.warmUps, 0);
}

TEST(Move, CommandsDuringAMoveRunAfterItInTheirOrderAndOptionsAtOnce) {
    World world;
    world.open(columns);
    world.inPause = [&] {
        if (world.pauses > 1) {
            return;
        }
        world.command(2);  // the reset comes after the move's score, and before the new game
        world.command(0);
        world.press(3);  // a ball of the board before
        world.seed = 1;  // the next board has a group there, too
        QTest::mousePress(world.control<QWidget>("Image1"), Qt::LeftButton);
        EXPECT_EQ(world.shown(), world.window.get()) << "the About window comes after it too";
        world.select(2);
        world.control<QCheckBox>("Check1")->click();
        EXPECT_EQ(world.stored("Niveau"), "2");
        EXPECT_EQ(world.game().score, 0);
    };
    world.press(0);
    EXPECT_TRUE(world.sound.played.empty()) << "the switch was thrown before the sound";
    EXPECT_EQ(world.stored("0"), "0");
    EXPECT_EQ(world.game().Total, 6);
    EXPECT_EQ(world.game().NbCoul, 4);
    EXPECT_EQ(world.text("l1", 0), "");
    EXPECT_NE(world.shown(), world.window.get());
}

TEST(Move, PressDuringAMoveIsPlayedWhereItsBallHasFallen) {
    for (const bool soundOn : {true, false}) {
        World world;
        world.set("Son", soundOn ? "1" : "0");
        world.open("br br rb rb");
        auto* cell = QAccessible::queryAccessibleInterface(world.cells())->child(0)->actionInterface();
        const auto pressMeanwhile = [&] {
            if (world.game().Total == 8 && world.game().score <= 4) {
                world.press(3);  // vanishes, or has vanished
                world.press(2);  // empty
                // The ball of cell 0 falls beside its like. A screen reader acts when events are handled.
                soundOn ? QTimer::singleShot(0, [=] { cell->doAction(u"Press"_s); }) : world.press(0);
            }
        };
        soundOn ? world.sound.meanwhile = pressMeanwhile : world.inPause = pressMeanwhile;
        world.press(2);
        EXPECT_EQ(world.game().board, boardOf(".. .. r. r."));
    }
}

TEST(Move, ClosingDuringAMoveEndsItAtOnceAndLosesNothing) {
    for (const bool byCommand : {true, false}) {
        World world;
        world.open(columns);
        world.inPause = [&] {
            byCommand ? world.command(1) : static_cast<void>(world.window->close());
            EXPECT_TRUE(world.window->isVisible()) << "nothing dies under a running move";
        };
        world.press(0);
        EXPECT_FALSE(world.window->isVisible());
        EXPECT_EQ(world.pauses, 1) << "no pace once the player waits for the end";
        EXPECT_TRUE(world.sound.played.empty());
        EXPECT_EQ(world.text("Label4"), "8");
        EXPECT_EQ(world.stored("0"), "8");
        EXPECT_EQ(world.stored("Son"), "1");
    }
}

}  // namespace
}  // namespace mainwindow
