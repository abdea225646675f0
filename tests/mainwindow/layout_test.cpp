#include <QAbstractButton>
#include <QFontMetrics>
#include <QStyle>

#include "platform/fitted_text.h"
#include "tests/mainwindow/world.h"

namespace mainwindow {
namespace {

TEST(Layout, NoTextIsClipped) {
    World world;
    world.open();
    for (const auto* label : world.window->findChildren<QLabel*>()) {
        if (label->text().isEmpty() || label->wordWrap()) {
            continue;
        }
        const QFontMetrics metrics(label->font());
        // A label lower than a line may lose blank rows, but no part of a letter.
        const QRect line = label->style()->itemTextRect(metrics, label->rect(), static_cast<int>(label->alignment()),
                                                        true, label->text());
        const QRect ink = metrics.tightBoundingRect(label->text()).translated(0, line.top() + metrics.ascent());
        EXPECT_GE(ink.top(), std::max(-label->y(), 0)) << qPrintable(label->objectName());
        EXPECT_LT(ink.bottom(), label->height()) << qPrintable(label->objectName());
        EXPECT_LE(metrics.horizontalAdvance(label->text()), label->width()) << qPrintable(label->objectName());
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
    for (const char* text : {"32767 balles crevées (715806037 points.)", "2 balles crevées (4 points.)"}) {
        platform::setFittedText(*line, QString::fromUtf8(text));
        EXPECT_LE(QFontMetrics(line->font()).horizontalAdvance(line->text()), line->width()) << text;
    }
    EXPECT_EQ(line->font().stretch(), QFont::Unstretched) << "a short line got its width back";
}

TEST(Layout, ControlsThatOverlapAreStackedAsThePlayerNeedsThem) {
    World world;
    world.open();
    auto* Frame2 = world.control<QWidget>("Frame2");
    for (int i = 0; i < 3; ++i) {
        auto* caption = world.control("LabBtn", i);
        EXPECT_EQ(Frame2->childAt(caption->geometry().center()), caption) << "the caption lies on its button";
    }
    auto* reset = world.control("ImBTN", 2);
    EXPECT_EQ(Frame2->childAt(reset->geometry().topLeft() + QPoint(3, 3)), reset) << "the outline lets clicks through";
    EXPECT_FALSE(world.control("Label2")->geometry().intersects(world.control("Label4")->geometry()));
}

TEST(Layout, TabGoesFromTheSelectedOptionToTheBoxesAndTheSwitch) {
    World world;
    world.set("Niveau", "2");
    world.open();
    world.window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(world.window.get()));
    for (const char* stop : {"Option1(2)", "Text1(1)", "Text1(0)", "Check1", "Option1(2)"}) {
        EXPECT_STREQ(qPrintable(world.window->focusWidget()->objectName()), stop);
        QTest::keyClick(world.window->focusWidget(), Qt::Key_Tab);
    }
}

}  // namespace
}  // namespace mainwindow
