// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <QFocusFrame>

#include "tests/mainwindow/world.h"

namespace mainwindow {

TEST(Keyboard, FirstKeyShowsTheCursorTheNextOnePlaysAndTheMouseHidesIt) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        World world;
        world.open("rb br br");
        const auto look = [&] { return world.window->grab().toImage(); };
        const QImage withoutCursor = look();
        world.key(key);
        EXPECT_NE(look(), withoutCursor);
        world.key(Qt::Key_Left);
        world.hover({20, 40});
        world.hover({20, 41});
        EXPECT_EQ(look(), withoutCursor);
        world.key(key);
        QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
        QCoreApplication::sendEvent(world.cells(), &held);
        EXPECT_EQ(world.game().board, boardOf("rb br br")) << "a held key does not play";
        world.key(key);
        EXPECT_EQ(world.game().board, boardOf(".b .r rr"));
    }
}

TEST(Keyboard, CursorStaysOnTheBoard) {
    World world;
    world.open("rbr brb");
    const std::vector<std::pair<Qt::Key, int>> table{
        {Qt::Key_Left, 1},  {Qt::Key_Left, 1},   {Qt::Key_Down, 1},  {Qt::Key_Up, 0},       {Qt::Key_Up, 0},
        {Qt::Key_Right, 2}, {Qt::Key_End, 4},    {Qt::Key_Right, 4}, {Qt::Key_PageDown, 5}, {Qt::Key_Left, 3},
        {Qt::Key_Home, 1},  {Qt::Key_PageUp, 0}, {Qt::Key_Down, 1},
    };
    for (const auto& [key, cell] : table) {
        world.key(key);
        EXPECT_EQ(world.cells()->cursorCell(), cell) << key;
    }
    world.cells()->moveCursor(5);
    world.screen.Width -= 300;
    world.key(Qt::CTRL | Qt::Key_N);
    EXPECT_EQ(world.cells()->cursorCell(), 3) << "on the smaller board of the next game";
    EXPECT_TRUE(world.cells()->hasFocus());
}

TEST(Keyboard, PressOnTheBoardAndEnterOrEscapeInASizeBoxGiveTheBoardTheKeyboard) {
    World world;
    world.open("rb rb");
    auto* box = world.control<QWidget>("Text1", 1);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        box->setFocus();
        world.key(key);
        EXPECT_TRUE(world.cells()->hasFocus()) << key;
    }
    box->setFocus();
    world.press(3);
    EXPECT_TRUE(world.cells()->hasFocus());
    EXPECT_EQ(world.cells()->cursorCell(), 3);
    box->setFocus();
    world.key(Qt::Key_Home);
    world.key(Qt::CTRL | Qt::Key_Delete);
    EXPECT_EQ(world.box(1) + ',' + world.text("Label4"), ",4") << "deletes the text, not the best score";
    world.cells()->setFocus();
    world.key(Qt::CTRL | Qt::Key_Delete);
    EXPECT_EQ(world.text("Label4") + ',' + world.text("hsc", 0), "0,0");
}

TEST(Keyboard, TabGoesRoundAndARingSurroundsTheFocusUntilAMousePress) {
    World world;
    world.open("rb rb");
    world.select(2);
    const auto ringed = [&]() -> QWidget* {
        const auto* ring = world.window->findChild<QFocusFrame*>();
        return ring == nullptr || !ring->isVisible() ? nullptr : ring->widget();
    };
    std::vector<std::string> stops{"c", "Option1(2)", "Text1(1)", "Text1(0)", "Check1"};
    for (const auto key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        for (const auto& stop : stops) {
            QWidget* focused = world.window->focusWidget();
            EXPECT_EQ(focused->objectName().toStdString(), stop);
            EXPECT_EQ(ringed() == focused, stop != "c") << stop << ": the board has its cursor instead";
            world.key(key);
        }
        std::reverse(stops.begin() + 1, stops.end());
    }
    world.key(Qt::Key_Backtab);
    QTest::mousePress(world.control<QWidget>("Check1"), Qt::LeftButton);
    EXPECT_EQ(ringed(), nullptr);
}

}  // namespace mainwindow
