// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QFontMetrics>
#include <QStyle>

#include "platform/label.h"
#include "tests/ink.h"
#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

TEST(Layout, NoTextIsClipped) {
    World world;
    world.open();
    for (auto* label : world.window->findChildren<platform::Label*>()) {
        if (!label->objectName().startsWith(u"hsc")) {
            EXPECT_EQ(ink(label->grab()), ink(unclipped(*label, label->font()))) << qPrintable(label->objectName());
        }
    }
    for (const auto* button : world.window->findChildren<QAbstractButton*>()) {
        const int room = button->width() - button->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) -
                         button->style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
        EXPECT_LE(QFontMetrics(button->font()).horizontalAdvance(button->text()), room) << qPrintable(button->text());
    }
}

TEST(Layout, LongestStatusLinesAreCondensedToTheirLabels) {
    World world;
    world.open();
    auto* line = world.control("l1", 0);
    for (const auto& [text, isCondensed] : {std::pair{u"32767 balles crevées (715806037 points.)"_s, true},
                                            std::pair{u"2 balles crevées (4 points.)"_s, false}}) {
        const QFont font = platform::condensed(line->font(), text, line->width());
        EXPECT_LE(QFontMetrics(font).horizontalAdvance(text), line->width()) << qPrintable(text);
        EXPECT_EQ(font.stretch() < QFont::Unstretched, isCondensed) << qPrintable(text);
        line->setText(text);
        EXPECT_EQ(ink(line->grab()), ink(unclipped(*line, font))) << qPrintable(text);
    }
}

TEST(Layout, ControlsThatOverlapAreStackedAsThePlayerNeedsThem) {
    World world;
    world.open();
    auto* Frame2 = world.control<QWidget>("Frame2");
    for (int i = 0; i < 3; ++i) {
        auto* caption = world.control("LabBtn", i);
        EXPECT_EQ(Frame2->childAt(caption->geometry().center()), caption) << "the caption lies on its button";
    }
    auto* reset = world.control<QWidget>("ImBTN", 2);
    EXPECT_EQ(Frame2->childAt(reset->geometry().topLeft() + QPoint(3, 3)), reset) << "the outline lets clicks through";
    EXPECT_FALSE(world.control("Label2")->geometry().intersects(world.control("Label4")->geometry()));
}

TEST(Layout, TabGoesFromTheBoardToTheSelectedOptionTheBoxesAndTheSwitch) {
    World world;
    world.set("Niveau", "2");
    world.open();
    world.window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(world.window.get()));
    const auto expectFocus = [&](const char* stop) {
        EXPECT_STREQ(qPrintable(world.window->focusWidget()->objectName()), stop);
    };
    for (const char* stop : {"c", "Option1(2)", "Text1(1)", "Text1(0)", "Check1", "c"}) {
        expectFocus(stop);
        QTest::keyClick(world.window->focusWidget(), Qt::Key_Tab);
    }
    for (const char* stop : {"Option1(2)", "c", "Check1", "Text1(0)", "Text1(1)"}) {
        expectFocus(stop);
        QTest::keyClick(world.window->focusWidget(), Qt::Key_Backtab);
    }
}

}  // namespace
}  // namespace mainwindow
