// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QCheckBox>
#include <QFocusFrame>

#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

struct KeyboardWorld : World {
    explicit KeyboardWorld(const char* board) {
        open(board);
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void key(QKeyCombination key) const { QTest::keyClick(window->focusWidget(), key.key(), key.keyboardModifiers()); }
    QImage look() const { return window->grab().toImage(); }
};

TEST(Keyboard, FirstKeyOnlyShowsTheCursorAndTheMouseHidesIt) {
    KeyboardWorld world("rb rb");
    const QImage before = world.look();
    for (const auto key : {Qt::Key_Space, Qt::Key_Up}) {
        world.key(key);
        EXPECT_EQ(world.cells()->cursorCell(), 1) << "the lowest cell at the left";
        EXPECT_NE(world.look(), before);
        world.hover({20, key == Qt::Key_Up ? 40 : 44});
        EXPECT_EQ(world.look(), before);
    }
    world.key(Qt::Key_Tab);
    EXPECT_FALSE(world.cells()->hasFocus());
    EXPECT_EQ(world.game().board, boardOf("rb rb"));
}

TEST(Keyboard, CursorStaysOnTheBoard) {
    KeyboardWorld world("rbr brb");
    const std::vector<std::tuple<Qt::Key, int, const char*>> table{
        {Qt::Key_Left, 1, "shown"},      {Qt::Key_Left, 1, "left edge"},    {Qt::Key_Down, 1, "lower edge"},
        {Qt::Key_Up, 0, "up"},           {Qt::Key_Up, 0, "upper edge"},     {Qt::Key_Right, 2, "right"},
        {Qt::Key_End, 4, "last column"}, {Qt::Key_Right, 4, "right edge"},  {Qt::Key_PageDown, 5, "bottom row"},
        {Qt::Key_Left, 3, "left"},       {Qt::Key_Home, 1, "first column"}, {Qt::Key_PageUp, 0, "top row"},
        {Qt::Key_Down, 1, "down"},
    };
    for (const auto& [key, cell, what] : table) {
        world.key(key);
        EXPECT_EQ(world.cells()->cursorCell(), cell) << what;
    }
    world.cells()->moveCursor(5);
    world.screen.Width -= 300;
    world.key(Qt::Key_F2);
    EXPECT_EQ(world.cells()->cursorCell(), 3) << "on the smaller board of the next game";
    EXPECT_TRUE(world.cells()->hasFocus());
}

TEST(Keyboard, SpaceAndEnterPressTheCellOnce) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        KeyboardWorld world("rb br br");
        world.key(key);
        QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
        QCoreApplication::sendEvent(world.cells(), &held);
        EXPECT_EQ(world.game().board, boardOf("rb br br")) << "shown, and held";
        world.key(key);
        EXPECT_EQ(world.game().board, boardOf(".b .r rr")) << "pressed";
        world.cells()->moveCursor(0);
        world.key(key);
        EXPECT_EQ(world.game().board, boardOf(".b .r rr")) << "an empty cell";
    }
}

TEST(Keyboard, EndPanelIsLeftWithAKeyOfTheBoardOrWithEscape) {
    for (const auto key : {Qt::Key_Escape, Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        for (const char* focused : {"c", "Check1"}) {
            KeyboardWorld world("r r b");
            world.finish();
            world.control<QWidget>(focused)->setFocus();
            world.key(key);
            const bool closes = key == Qt::Key_Escape || world.cells()->hasFocus();
            EXPECT_NE(world.control<QWidget>("Frame1")->isVisible(), closes) << focused << ' ' << key;
            EXPECT_EQ(world.cells()->hasFocus(), closes);
        }
    }
}

TEST(Keyboard, PressOnTheBoardAndEnterOrEscapeInASizeBoxGiveItTheKeyboard) {
    KeyboardWorld world("rb rb");
    auto* box = world.control<QWidget>("Text1", 1);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        box->setFocus();
        world.key(key);
        EXPECT_TRUE(world.cells()->hasFocus()) << key;
    }
    box->setFocus();
    world.press(3);
    world.key(Qt::Key_5);
    EXPECT_EQ(world.box(1), "2") << "no stray digit";
    EXPECT_EQ(world.cells()->cursorCell(), 3);
    box->setFocus();
    world.key(Qt::Key_Home);
    world.key(Qt::CTRL | Qt::Key_Delete);
    EXPECT_EQ(world.box(1), "");
    EXPECT_EQ(world.text("Label4"), "4") << "a size box keeps its keys";
}

TEST(Keyboard, RingSurroundsTheFocusFromAKeyToAMousePress) {
    KeyboardWorld world("rb rb");
    const auto ringed = [&]() -> QWidget* {
        const auto* ring = world.window->findChild<QFocusFrame*>();
        return ring == nullptr || !ring->isVisible() ? nullptr : ring->widget();
    };
    QWidget* expected = nullptr;  // the board has its cursor
    for (int tabs = 0; tabs < 5; ++tabs, expected = world.window->focusWidget()) {
        EXPECT_EQ(ringed(), expected) << tabs << " tabs";
        world.key(Qt::Key_Tab);
    }
    QTest::mousePress(world.control<QWidget>("Check1"), Qt::LeftButton);
    EXPECT_EQ(ringed(), nullptr);
}

TEST(Keyboard, LetterKeysDealAndSwitchTheSoundAndAHeldKeyLeavesAboutOpen) {
    KeyboardWorld world("rb rb");
    world.press(0);
    world.key(Qt::CTRL | Qt::Key_N);
    EXPECT_EQ(world.game().board, boardOf("rb rb"));
    const bool sound = world.control<QCheckBox>("Check1")->isChecked();
    world.key(Qt::CTRL | Qt::Key_S);
    EXPECT_NE(world.control<QCheckBox>("Check1")->isChecked(), sound);
    world.key(Qt::Key_F1);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &held);
    EXPECT_FALSE(world.window->isVisible());
}

}  // namespace
}  // namespace mainwindow
