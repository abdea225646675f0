// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/picture_box.h"
#include "tests/mainwindow/world.h"

namespace mainwindow {

TEST(HoverAndDrag, ButtonsAndPreviewFollowThePointer) {
    World world;
    world.set("0", "10");
    world.set("3", "40");
    world.seed = 8;  // deals a lone ball at the upper left
    world.open();
    constexpr int none = -1;
    const platform::Picture hoverFace = world.control<platform::PictureBox>("BTN", 1)->picture();
    const auto expect = [&](int lit, const char* best, const char* where) {
        for (int i = 0; i < 3; ++i) {
            const bool isLit = world.control<platform::PictureBox>("ImBTN", i)->picture() == hoverFace;
            EXPECT_EQ(isLit, i == lit) << "button " << i << ", pointer at " << where;
        }
        EXPECT_EQ(world.text("Label4"), best) << "pointer at " << where;
    };
    const std::vector<std::tuple<const char*, int, int, const char*>> table{
        {"Option1", 3, none, "40"}, {"ImBTN", 0, 0, "40"}, {"Text1", 0, 0, "40"},      {"LabBtn", 1, 1, "40"},
        {"sc", -1, none, "40"},     {"ImBTN", 2, 2, "40"}, {"Shape1", -1, none, "10"}, {"LabBtn", 0, 0, "10"},
        {"Option1", 4, none, "0"},  {"LabBtn", 2, 2, "0"}, {"Image1", -1, 2, "0"},     {"ImBTN", 1, 1, "0"},
    };
    for (const auto& [name, index, lit, best] : table) {
        world.hover(world.control<QWidget>(name, index));
        expect(lit, best, name);
    }
    world.hover({43, 43});
    expect(1, "0", "a cell");
    world.hover({5, 50});
    expect(1, "0", "the border");
    QTest::mousePress(world.window->windowHandle(), Qt::LeftButton, {}, {43, 43});
    expect(none, "0", "a cell that is pressed");
    world.hover({20, 41});
    expect(none, "0", "the background, while the button is down");
    QTest::mouseRelease(world.window->windowHandle(), Qt::LeftButton, {}, {20, 41});
    world.hover({20, 40});
    expect(none, "10", "the background");
}

TEST(HoverAndDrag, DragLastsFromThePressToTheReleaseOfItsButton) {
    World world;
    world.open("rb rb");
    const QPoint start = world.window->pos();
    const QPoint grip(20, 25);
    using enum QEvent::Type;
    const auto left = Qt::LeftButton;
    const auto right = Qt::RightButton;
    const auto mouse = [&](QEvent::Type type, QPoint way, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, grip, start + grip + way, button, held, {});
        QCoreApplication::sendEvent(world.window.get(), &event);
        return world.window->pos() - start;
    };
    mouse(MouseButtonPress, {}, right, right);
    EXPECT_EQ(mouse(MouseMove, {30, -9}, {}, right), QPoint(30, -9));
    EXPECT_EQ(mouse(MouseButtonPress, {31, 9}, left, left | right), QPoint(30, -9)) << "another button";
    EXPECT_EQ(mouse(MouseButtonDblClick, {31, 9}, left, left | right), QPoint(30, -9));
    EXPECT_EQ(mouse(MouseButtonRelease, {40, 9}, left, right), QPoint(40, 9));
    EXPECT_EQ(mouse(MouseButtonRelease, {-500, 44}, right, {}), QPoint(-500, 44)) << "outside the window";
    mouse(MouseButtonPress, {-500, 44}, left, left);
    EXPECT_EQ(mouse(MouseMove, {5, 5}, {}, {}), QPoint(-500, 44)) << "the window has missed the release";
    EXPECT_EQ(mouse(MouseMove, {6, 6}, {}, left), QPoint(-500, 44)) << "so the drag is over";
    mouse(MouseButtonPress, {-500, 44}, left, left);
    world.press(0);
    EXPECT_EQ(world.game().board, boardOf("b. b.")) << "this press shows that the window has missed a release";
}

TEST(Buttons, ClickIsALeftPressAndReleaseOnTheSameButton) {
    World world;
    world.open();
    world.seed = 7;
    const rules::Board before = world.game().board;
    auto* picture = world.control<QWidget>("ImBTN", 0);
    QTest::mouseClick(picture, Qt::RightButton);
    QTest::mousePress(picture, Qt::LeftButton);
    QTest::mouseRelease(picture, Qt::LeftButton, {}, {-20, 5});
    QTest::mouseRelease(picture, Qt::LeftButton);
    EXPECT_EQ(world.game().board, before);
    QTest::mouseClick(picture, Qt::LeftButton);
    EXPECT_NE(world.game().board, before);
}

}  // namespace mainwindow
