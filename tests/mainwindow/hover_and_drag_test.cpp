// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/picture_box.h"
#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

// The buttons that show their hover face, by their index.
std::string lit(const World& world) {
    const platform::Picture hoverFace = world.control<platform::PictureBox>("BTN", 1)->picture();
    std::string found;
    for (int i = 0; i < 3; ++i) {
        if (world.control<platform::PictureBox>("ImBTN", i)->picture() == hoverFace) {
            found += std::to_string(i);
        }
    }
    return found;
}

TEST(HoverAndDrag, ButtonsAndPreviewFollowThePointer) {
    World world;
    world.set("0", "10");
    world.set("3", "40");
    world.open();
    struct Row {
        const char *name, *lit, *best;
        int index = -1;
    };
    const std::vector<Row> table{
        {"Option1", "", "40", 3}, {"sc", "", "40"},        {"Label5", "", "40", 0},  {"Shape1", "", "10"},
        {"ImBTN", "0", "10", 0},  {"Text1", "0", "10", 0}, {"Check1", "0", "10"},    {"Image1", "0", "10"},
        {"LabBtn", "1", "10", 1}, {"l1", "", "10", 0},     {"LabBtn", "2", "10", 2}, {"Label4", "", "10"},
        {"ImBTN", "1", "10", 1},  {"Option1", "", "0", 4}, {"l1", "", "0", 3},       {"LabBtn", "0", "0", 0},
        {"Label3", "", "0"},      {"ImBTN", "2", "0", 2},  {"Label2", "", "0"},      {"Shape1", "", "10"},
    };
    for (const Row& row : table) {
        world.hover(world.control<QWidget>(row.name, row.index));
        EXPECT_EQ(lit(world), row.lit) << row.name;
        EXPECT_EQ(world.text("Label4"), row.best) << row.name;
    }
}

TEST(HoverAndDrag, OnlyTheBackgroundOfTheWindowAnswersTheMouse) {
    World world;
    world.set("3", "40");
    world.open();
    const std::vector<std::tuple<const char*, QPoint, bool>> table{
        {"a cell", {43, 43}, false}, {"the border", {5, 50}, false}, {"the background", {20, 40}, true}};
    for (const auto& [what, place, answers] : table) {
        world.hover(world.control<QWidget>("Option1", 3));
        world.hover(world.control("LabBtn", 1));
        world.hover(place);
        EXPECT_EQ(lit(world), answers ? "" : "1") << what;
        EXPECT_EQ(world.text("Label4"), answers ? "0" : "40") << what;
    }
    world.hover(world.control("LabBtn", 1));
    const QPoint background(20, 40);
    QMouseEvent held(QEvent::MouseMove, background, background, Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(world.window.get(), &held);
    EXPECT_EQ(lit(world), "1") << "a button is held that was pressed on a cell";
    world.press(0);
    EXPECT_EQ(lit(world), "") << "a press on a cell";
}

TEST(HoverAndDrag, DragLastsFromThePressToTheReleaseOfItsButton) {
    World world;
    world.open("rb rb");
    auto& window = *world.window;
    const QPoint start = window.pos();
    const QPoint grip(20, 25);
    const auto mouse = [&](QEvent::Type type, QPoint offset, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, grip, start + grip + offset, button, held, {});
        QCoreApplication::sendEvent(&window, &event);
        return window.pos() - start;
    };
    using Type = QEvent::Type;
    const auto left = Qt::LeftButton;
    const auto right = Qt::RightButton;
    mouse(Type::MouseButtonPress, {}, right, right);
    EXPECT_EQ(mouse(Type::MouseMove, {30, -9}, {}, right), QPoint(30, -9));
    EXPECT_EQ(mouse(Type::MouseButtonPress, {31, 9}, left, left | right), QPoint(30, -9)) << "another button";
    EXPECT_EQ(mouse(Type::MouseButtonDblClick, {31, 9}, left, left | right), QPoint(30, -9));
    EXPECT_EQ(mouse(Type::MouseButtonRelease, {40, 9}, left, right), QPoint(40, 9));
    EXPECT_EQ(mouse(Type::MouseButtonRelease, {-500, 44}, right, {}), QPoint(-500, 44)) << "out of the window";
    EXPECT_EQ(mouse(Type::MouseMove, {60, 60}, {}, {}), QPoint(-500, 44)) << "after the release";
    window.move(start);
    mouse(Type::MouseButtonPress, {}, left, left);
    EXPECT_EQ(mouse(Type::MouseMove, {5, 5}, {}, {}), QPoint()) << "the release was heard by nobody";
    EXPECT_EQ(mouse(Type::MouseMove, {6, 6}, {}, left), QPoint()) << "and the drag is over";
    mouse(Type::MouseButtonPress, {}, left, left);
    EXPECT_EQ(world.game().board, boardOf("rb rb"));
    world.press(0);
    EXPECT_EQ(world.game().board, boardOf("b. b.")) << "nor was this one, as the press tells";
}

}  // namespace
}  // namespace mainwindow
