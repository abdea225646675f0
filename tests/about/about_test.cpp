// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "about/about.h"

#include <QTest>
#include <gtest/gtest.h>

#include "animation/bounce.h"
#include "platform/controls.h"
#include "platform/label.h"
#include "platform/twips.h"
#include "tests/ink.h"

namespace about {
namespace {

using platform::Label;

struct OpenAbout {
    About window{{0, 0, 24'000, 18'000}, [] { return 0.998; }, [] {}};  // the balls at the far edges

    OpenAbout() { window.show(); }

    // The pointer as the window system tells of it: which control hears of it is the toolkit's decision.
    void hover(QPoint place) { QTest::mouseMove(window.windowHandle(), place); }

    // The names of all labels that are bold.
    std::string bold() const {
        QStringList names;
        for (const Label* label : window.findChildren<Label*>()) {
            if (label->font().bold()) {
                names += label->objectName();
            }
        }
        names.sort();
        return names.join(u' ').toStdString();
    }
};

TEST(About, NoTextIsClippedBoldOrNot) {
    OpenAbout about;
    for (auto* label : about.window.findChildren<Label*>()) {
        for (const auto weight : {QFont::Normal, QFont::Bold}) {
            QFont font = label->font();
            font.setWeight(weight);
            label->setFont(font);
            EXPECT_EQ(ink(label->grab()), ink(unclipped(*label, font))) << qPrintable(label->text());
        }
    }
}

TEST(About, LabelUnderTheMouseIsBoldAndALinkLeavesTheParagraphsAsTheyAre) {
    OpenAbout about;
    struct Row {
        const char* name;
        int index;
        const char* bold;
    };
    const std::vector<Row> table{
        {"Label2", 3, "Label2(3)"}, {"Label1", 1, "Label1(1) Label2(3)"}, {"Label1", 0, "Label1(0) Label2(3)"},
        {"Label2", 0, "Label2(0)"}, {"Label1", 2, "Label1(2) Label2(0)"}, {"", 0, ""},
        {"Label1", 2, "Label1(2)"}, {"Label2", 5, "Label2(5)"},           {"", 0, ""},
    };
    for (const Row& row : table) {
        const QPoint background(200, 8);
        about.hover(*row.name == '\0'
                        ? background
                        : platform::control<Label>(about.window, row.name, row.index)->geometry().center());
        EXPECT_EQ(about.bold(), row.bold) << row.name << '(' << row.index << ')';
    }
}

TEST(About, BallsFollowTheirRuleRestWhileTheWindowIsHiddenAndGoOnAfterwards) {
    OpenAbout about;
    const auto* ball = platform::control<QWidget>(about.window, "ip");
    const QSize field = about.window.size() * platform::twipsPerPixel;
    animation::Balls balls = animation::scatter(field.width(), field.height(), [] { return 0.998; });
    const auto place = [&] { return QPoint(platform::toPixels(balls[0].PosX), platform::toPixels(balls[0].PosY)); };
    animation::pass(balls, field.width(), field.height());
    EXPECT_EQ(ball->pos(), place()) << "not on its way when the window shows";
    const auto moves = [&](int milliseconds = 5000) {
        const QPoint before = ball->pos();
        return QTest::qWaitFor([&] { return ball->pos() != before; }, milliseconds);
    };
    EXPECT_TRUE(moves() && moves() && moves());
    for (int passes = 0; passes < 100 && ball->pos() != place(); ++passes) {
        animation::pass(balls, field.width(), field.height());
    }
    EXPECT_EQ(ball->pos(), place());
    about.window.hide();
    EXPECT_FALSE(moves(300));
    about.window.show();
    EXPECT_TRUE(moves());
}

}  // namespace
}  // namespace about
