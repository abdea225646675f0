// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <numeric>

#include <QAccessible>
#include <QCheckBox>
#include <QTimer>

#include "tests/mainwindow/world.h"

namespace mainwindow {

TEST(Move, SoundDeviceOpensWhileTheBallsVanishButNeverInVain) {
    World world;
    world.open("r r b");
    world.key(Qt::CTRL | Qt::Key_S);
    world.press(0);
    EXPECT_EQ(world.sound.warmUps, 0) << "the sound is off";
    world.key(Qt::CTRL | Qt::Key_S);
    world.command(0);
    world.press(2);
    EXPECT_EQ(world.sound.warmUps, 0) << "a lone ball makes no sound";
    world.inPause = [&] { EXPECT_EQ(world.sound.warmUps, 1); };
    world.press(0);
    EXPECT_EQ(world.sound.warmUps, 1);
}

TEST(Move, BallsVanishInEqualSharesOneInEachRefreshAndInFifteenAtMost) {
    World world;
    world.open();
    std::ptrdiff_t shown = 0;
    std::vector<std::ptrdiff_t> shares;
    world.inPause = [&] {
        const auto removed = std::ranges::count(world.game().board.cells, rules::Code::none);
        shares.push_back(removed - std::exchange(shown, removed));
    };
    std::mt19937 chance;
    while (world.pressAnyGroup(chance)) {
        const auto group = std::accumulate(shares.begin(), shares.end(), std::ptrdiff_t{});
        const auto [least, most] = std::ranges::minmax(shares);
        EXPECT_LE(most - least, 1) << group << " balls";
        EXPECT_EQ(std::ssize(shares), std::min<std::ptrdiff_t>(group, 15)) << group << " balls";
        EXPECT_EQ(shown, world.game().NBBoules - world.game().Total) << "the last balls are shown, too";
        shares.clear();
    }
}

TEST(Move, CommandsDuringAMoveRunAfterItInTheirOrderAndOptionsAtOnce) {
    World world;
    world.set("2", "70");
    world.open("rb rb rb");
    world.inPause = [&] {
        if (world.pauses == 1) {
            world.command(2);  // the reset comes after the move's score, and before the new game
            world.command(0);
            world.press(3);  // a ball of the old board
            world.seed = 1;  // the new board has a group there, too
            QTest::mousePress(world.control<QWidget>("Image1"), Qt::LeftButton);
            EXPECT_EQ(world.shown(), world.window.get()) << "the About window comes after the move, too";
            world.select(2);  // the reset means the level that is played
            EXPECT_EQ(world.stored("Niveau"), "2");
            world.control<QCheckBox>("Check1")->click();
        }
    };
    world.press(0);
    EXPECT_TRUE(world.sound.played.empty()) << "the sound was switched off before it began";
    EXPECT_EQ(world.stored("0") + ',' + world.stored("2"), "0,70");
    EXPECT_EQ(world.text("Label4"), "70");
    EXPECT_EQ(world.game().Total, 6);
    EXPECT_EQ(world.game().NbCoul, 4);
    EXPECT_EQ(world.text("l1", 0), "");
    EXPECT_NE(world.shown(), world.window.get());
}

TEST(Move, PressDuringAMoveIsPlayedWhereItsBallHasFallen) {
    World world;
    world.open("br br rb rb");
    auto* ball = QAccessible::queryAccessibleInterface(world.cells())->child(0)->actionInterface();
    world.inPause = [&] {
        if (world.pauses == 1) {
            world.press(3);  // this ball vanishes next
        }
    };
    world.sound.meanwhile = [&] {
        if (world.sound.played.size() == 1) {
            // A screen reader acts as soon as the program handles events: before the ball falls.
            QTimer::singleShot(0, [=] { ball->doAction(u"Press"_s); });
        }
    };
    world.press(2);
    EXPECT_EQ(world.game().board, boardOf(".. .. r. r."));
}

TEST(Move, ClosingDuringAMoveEndsItAtOnceAndLosesNothing) {
    World world;
    world.open("rb rb rb");
    world.inPause = [&] {
        world.window->close();
        EXPECT_TRUE(world.window->isVisible()) << "until the move has ended";
    };
    world.press(0);
    EXPECT_FALSE(world.window->isVisible());
    EXPECT_EQ(world.pauses, 1) << "the other balls vanish without a pause";
    EXPECT_TRUE(world.sound.played.empty());
    EXPECT_EQ(world.stored("0"), "8");
    EXPECT_EQ(world.stored("Son"), "1");
}

TEST(Turns, KeptRequestsRunInTheirOrderAfterEachMove) {
    using enum Command;
    using Requests = std::vector<Request>;
    for (const auto& [made, expected] : std::vector<std::pair<Requests, Requests>>{
             {{help, Press{1}, newGame, reset}, {Press{1}, newGame, reset, help}},
             {{Press{1}, reset, quit, Press{2}, newGame}, {reset, quit}},
             {Requests(10, Press{1}), Requests(8, Press{1})},
         }) {
        Requests ran;
        Turns turns([&](Request request) { ran.push_back(request); });
        for (int move = 0; move < 2; ++move) {
            ran.clear();
            turns.begin();
            for (const Request request : made) {
                turns.perform(request);
            }
            EXPECT_TRUE(ran.empty());
            turns.end();
            EXPECT_EQ(ran, expected);
        }
    }
}

}  // namespace mainwindow
