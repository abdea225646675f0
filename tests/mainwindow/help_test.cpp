// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <QApplication>

#include "about/about.h"
#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

std::vector<about::About*> aboutWindows() {
    std::vector<about::About*> found;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* about = qobject_cast<about::About*>(window)) {
            found.push_back(about);
        }
    }
    return found;
}

void finishDeletions() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST(Help, TakesThePlaceOfTheGameAndGivesItBackAsItWas) {
    World world;
    world.open("r r b");
    world.finish();
    world.window->move(300, 120);
    const auto* panel = world.control<QWidget>("Frame1");
    for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
        for (int press = 0; press < 2; ++press) {
            QTest::mousePress(world.control<QWidget>("Image1"), button);
        }
        ASSERT_EQ(aboutWindows().size(), 1) << "pressed twice, opened once";
        EXPECT_TRUE(aboutWindows()[0]->isVisible());
        EXPECT_FALSE(world.window->isVisible());
        aboutWindows()[0]->close();
        aboutWindows()[0]->close();
        finishDeletions();
        EXPECT_TRUE(aboutWindows().empty());
        EXPECT_TRUE(world.window->isVisible());
        EXPECT_EQ(world.window->pos(), QPoint(300, 120));
        EXPECT_TRUE(panel->isVisible());
        EXPECT_EQ(world.text("sc"), "4");
    }
}

TEST(Help, OpensInTheMiddleOfTheGamesScreen) {
    World world;
    world.screen = {30'000, 1'500, 15'360, 11'520};
    world.open();
    QTest::mousePress(world.control<QWidget>("Image1"), Qt::LeftButton);
    EXPECT_EQ(aboutWindows().at(0)->geometry(), QRect(2000 + (1024 - 413) / 2, 100 + (768 - 344) / 2, 413, 344));
}

}  // namespace
}  // namespace mainwindow
