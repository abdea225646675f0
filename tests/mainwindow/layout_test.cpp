// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <QAbstractButton>

#include "tests/ink.h"
#include "tests/mainwindow/world.h"

namespace mainwindow {

TEST(Layout, EveryTextIsWholeAndInFront) {
    World world;
    world.open();
    for (auto* label : world.window->findChildren<platform::Label*>()) {
        expectWholeText(*label, label->font());
    }
    for (const auto* button : world.window->findChildren<QAbstractButton*>()) {
        EXPECT_LE(button->sizeHint().width(), button->width()) << qPrintable(button->text());
    }
    for (int i = 0; i < 3; ++i) {
        const auto* caption = world.control("LabBtn", i);
        EXPECT_EQ(caption->parentWidget()->childAt(caption->geometry().center()), caption) << "behind its button";
    }
    EXPECT_FALSE(world.control("Label2")->geometry().intersects(world.control("Label4")->geometry()));
    auto* line = world.control<platform::Label>("l1", 0);
    line->setText(u"32767 balles crevées (715806037 points.)"_s);
    const QFont font = platform::condensed(line->font(), line->text(), line->width());
    EXPECT_LE(QFontMetrics(font).horizontalAdvance(line->text()), line->width());
    expectWholeText(*line, font);
}

TEST(Layout, OfASecondGameIsThatOfAFirstOne) {
    World first;
    first.set("Col", "12");
    first.set("Lig", "16");
    first.open();
    World world;
    world.open();
    for (const char* size : {"40", "8"}) {  // from a larger board, then from a smaller one
        world.type(size, size);
        world.command(0);
        EXPECT_NE(world.window->size(), first.window->size());
        world.type("12", "16");
        world.command(0);
        EXPECT_EQ(world.window->grab().toImage(), first.window->grab().toImage()) << "after " << size;
    }
}

}  // namespace mainwindow
