// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/text_box.h"

#include <QTest>
#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using platform::TextBox;

TEST(TextBox, KeepsWhatItWasGivenBeforeItsFirstPainting) {
    QWidget window;
    TextBox box(u"12"_s, &window);
    EXPECT_EQ(box.text(), u"12"_s);
    box.setText(u"40 é"_s);
    box.setFocus();
    EXPECT_EQ(box.text(), u"40 é"_s);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    window.grab();
    QTest::keyClick(window.focusWidget(), Qt::Key_End);
    QTest::keyClick(window.focusWidget(), 'x');
    EXPECT_EQ(box.text(), u"40 éx"_s);
}

}  // namespace
