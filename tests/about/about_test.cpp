// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "about/about.h"

#include <QTest>

#include "animation/bounce.h"
#include "platform/controls.h"
#include "platform/twips.h"
#include "tests/ink.h"

namespace about {
namespace {

using platform::Label;

double farEdge() {
    return 0.998;  // as a random number, it places the balls at the right and lower edges
}

struct OpenAbout : About {
    OpenAbout() : About({0, 0, 24'000, 18'000}, farEdge, [] {}) { show(); }
};

TEST(About, EveryTextIsWholeBoldOrNot) {
    OpenAbout about;
    for (auto* label : about.findChildren<Label*>()) {
        for (const auto weight : {QFont::Normal, QFont::Bold}) {
            QFont font = label->font();
            font.setWeight(weight);
            label->setFont(font);
            expectWholeText(*label, font);
        }
    }
}

TEST(About, LabelUnderTheMouseIsBoldAndALinkLeavesTheParagraphsAsTheyAre) {
    OpenAbout about;
    const auto isBoldUnderTheMouse = [&](const char* name, int index) {
        const auto* label = platform::control<Label>(about, name, index);
        QTest::mouseMove(about.windowHandle(), label->geometry().center());
        return label->font().bold();
    };
    const auto boldLabels = [labels = about.findChildren<Label*>()] {
        return std::ranges::count_if(labels, [](const Label* label) { return label->font().bold(); });
    };
    for (int paragraph = 0; paragraph < 6; ++paragraph) {
        EXPECT_TRUE(isBoldUnderTheMouse("Label2", paragraph) && boldLabels() == 1) << paragraph;
        EXPECT_TRUE(isBoldUnderTheMouse("Label1", paragraph % 3) && boldLabels() == 2) << paragraph;
    }
    QTest::mouseMove(about.windowHandle(), {200, 8});
    EXPECT_EQ(boldLabels(), 0) << "beside the labels";
}

TEST(About, HeldKeyDoesNotCloseTheWindow) {
    OpenAbout about;
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, {}, {}, true);
    QCoreApplication::sendEvent(&about, &held);
    EXPECT_TRUE(about.isVisible());
}

TEST(About, BallsFollowTheirRuleAndRestWhileTheWindowIsHidden) {
    OpenAbout about;
    const auto* ball = platform::control<QWidget>(about, "ip");
    const auto moves = [&](int milliseconds = 5000) {
        return QTest::qWaitFor([&, before = ball->pos()] { return ball->pos() != before; }, milliseconds);
    };
    const QSize field = about.size() * platform::twipsPerPixel;
    animation::Balls balls = animation::scatter(field.width(), field.height(), farEdge);
    QList<QPoint> path;
    for (int passes = 0; passes < 200; ++passes) {
        animation::pass(balls, field.width(), field.height());
        path += {platform::toPixels(balls[0].PosX), platform::toPixels(balls[0].PosY)};
    }
    EXPECT_EQ(ball->pos(), path.front()) << "on its way when the window shows";
    EXPECT_TRUE(moves() && moves() && moves() && path.contains(ball->pos()));
    about.hide();
    EXPECT_FALSE(moves(300));
}

}  // namespace
}  // namespace about
