// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <climits>
#include <csignal>

#include <QAccessible>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/process.h"
#include "rules/points.h"
#include "tests/mainwindow/world.h"
#include "tests/rules/plain.h"

// The offscreen platform has no screen reader, so the window is told that there is one.
bool QAccessible::isActive() {
    return true;
}

namespace mainwindow {
namespace {

constexpr int deepest = 6;
constexpr std::size_t frequentActs = 3;
constexpr std::array buttons{Qt::LeftButton, Qt::MiddleButton, Qt::RightButton};
constexpr std::array mouseActions{QTest::MousePress, QTest::MouseRelease, QTest::MouseClick, QTest::MouseMove};
constexpr std::array keys{Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Delete,
                          Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down, Qt::Key_F1,
                          Qt::Key_F2,    Qt::Key_9,      Qt::Key_Q,      Qt::Key_S};
constexpr std::array texts{"9", "12", "8", "", "x", "-5", "10.5", "1e9", "99999999999999999999", "é\\n\n"};
constexpr std::array numbers{INT_MIN, -113, -1, 0, 1, 2, 7, 8, 13, 14, 111, 112, 5000, INT_MAX};

/// A player, a desktop and a screen reader act at random, also in the middle of a move or of another act. The score and
/// the best scores that must result are counted along.
struct Storm : World {
    explicit Storm(int number) : random(number) {
        store = settings::Store(folder.filePath(u"game.ini"_s));
        nextSeed = [this] {
            countMove();
            score = 0;
            left = 0;
            return random();
        };
        inPause = [this] {
            countMove();
            QCoreApplication::processEvents();
            if (draw(3) == 0) {
                act();
            }
        };
        sound.meanwhile = [this] { act(); };
        otherProgram.show();
        start();
    }

    void start() {
        window.reset();
        left = 0;
        set("Col", "8");
        set("Lig", "14");
        set("Son", "open");
        open();
        platform::onQuitSignal(*window, [this] { window->close(); });
    }
    /// Closing has stored the sound switch.
    bool isClosed() const { return stored("Son") != "open"; }

    int draw(std::size_t count) { return static_cast<int>(random() % count); }
    template <typename Choices>
    typename Choices::value_type oneOf(const Choices& choices) {
        return choices[draw(choices.size())];
    }

    void act() {
        countMove();
        if (depth == deepest || window == nullptr || isClosed()) {
            return;
        }
        ++depth;
        const auto& [name, perform] = acts[draw(draw(2) == 0 ? frequentActs : acts.size())];
        trail += '\n' + std::string(depth, ' ') + name;
        perform();
        QCoreApplication::processEvents();
        --depth;
    }
    void usePointer() {
        const QPoint place(draw(shown()->width() + 40) - 20, draw(shown()->height() + 40) - 20);
        const QWidget* target = shown()->childAt(place);
        mayHaveReset |= target != nullptr && target->objectName().endsWith(u"(2)"_s);
        QTest::mouseEvent(oneOf(mouseActions), shown()->windowHandle(), oneOf(buttons), {}, place);
    }
    void useKey() {
        const Qt::Key key = oneOf(keys);
        const auto modifier = draw(3) == 0 ? Qt::ControlModifier : Qt::NoModifier;
        mayHaveReset |= key == Qt::Key_Delete && modifier == Qt::ControlModifier;
        QWidget* target = shown()->focusWidget() == nullptr ? shown() : shown()->focusWidget();
        QTest::sendKeyEvent(QTest::Click, target, key, QChar(key & 127), modifier);
    }
    /// A screen reader acts on the cell that it found last, which may be of an earlier board, and finds another one.
    void useScreenReader() {
        if (auto* cell = QAccessible::accessibleInterface(known)) {
            EXPECT_EQ(cell->parent()->indexOfChild(cell), knownIndex) << "a cell that moved";
            cell->actionInterface()->doAction(cell->actionInterface()->actionNames().value(draw(2)));
        }
        auto* board = QAccessible::queryAccessibleInterface(cells());
        board->child(oneOf(numbers));
        board->childAt(oneOf(numbers), oneOf(numbers));
        auto* cell = board->tableInterface()->cellAt(oneOf(numbers), oneOf(numbers));
        EXPECT_TRUE(cell->isValid()) << "a cell beside the board";
        known = QAccessible::uniqueId(cell);
        knownIndex = board->indexOfChild(cell);
    }
    void hideForAWhile() {
        window->hide();
        QCoreApplication::processEvents();
        window->setVisible(!isClosed() && shown() == window.get());
    }

    /// Called before each act, at the beginning of each move and at each deal. Since the last call, at most one move
    /// has ended.
    void countMove() {
        const std::string line = window == nullptr ? "0" : text("l1", 3);
        const int now = std::stoi(line.substr(line.find_first_of("0123456789")));
        if (now < left) {
            score = (score + rules::pointsFor(left - now)) * (now == 0 ? 2 : 1);
            best.at(game().Diff) = std::max(best.at(game().Diff), score);
        }
        left = now;
    }

    void expectOrder() {
        countMove();
        rules::Board settled = game().board;
        plain::settle(settled);
        EXPECT_EQ(game().board, settled);
        EXPECT_EQ(std::ssize(settled.cells) - std::ranges::count(settled.cells, rules::Code::none), game().Total);
        EXPECT_TRUE(settled.contains(cells()->cursorCell()));
        EXPECT_EQ(text("sc"), std::to_string(score)) << "the points of all moves";
        EXPECT_FALSE(game().Total > 1 && control<QWidget>("Frame1")->isVisible()) << "the panel of an earlier game";
        for (int level = 0; level < rules::levels; ++level) {
            const auto now = std::atoll(stored(std::to_string(level).c_str()).c_str());
            EXPECT_TRUE(now == best.at(level) || mayHaveReset) << "best score " << now << ", not " << best.at(level);
            best.at(level) = now;
        }
        mayHaveReset = false;
        EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(), &QWidget::isVisible), isClosed() ? 0 : 1);
        if (isClosed()) {
            EXPECT_EQ(stored("Col") + stored("Lig"), box(1) + box(0));
            start();
        }
    }
    void expectThatTheNextGameCanBePlayed() {
        depth = deepest;  // no more acts
        for (const Qt::MouseButton button : buttons) {
            QTest::mouseRelease(shown()->windowHandle(), button);
        }
        QTest::keyClick(shown(), Qt::Key_Escape);  // closes the About window
        screen = wholeScreen;
        command(0);
        EXPECT_TRUE(pressAnyGroup(random));
        EXPECT_LT(game().Total, game().NBBoules);
    }

    const std::vector<std::pair<const char*, std::function<void()>>> acts{
        {"press a group", [this] { pressAnyGroup(random); }},
        {"pointer", [this] { usePointer(); }},
        {"key", [this] { useKey(); }},
        {"screen reader", [this] { useScreenReader(); }},
        {"level", [this] { select(draw(rules::levels)); }},
        {"type", [this] { type(oneOf(texts), oneOf(texts)); }},
        {"resize", [this] { shown()->windowHandle()->resize(1 + draw(900), 1 + draw(900)); }},
        {"move", [this] { shown()->windowHandle()->setPosition(draw(9000) - 4500, draw(9000) - 4500); }},
        {"focus",
         [this] {
             oneOf(std::array{&otherProgram, shown()->windowHandle()})->requestActivate();
         }},
        {"hide", [this] { hideForAWhile(); }},
        {"minimise", [this] { shown()->setWindowState(shown()->windowState() ^ Qt::WindowMinimized); }},
        {"other screen",
         [this] {
             screen = {0, 0, 3'000 + 300 * draw(12), 300 * draw(20)};
         }},
        {"new game", [this] { command(0); }},
        {"quit", [this] { command(1); }},
        {"wait", [] { QTest::qWait(1); }},
        {"signal", [] { std::raise(SIGTERM); }},
    };

    const platform::Box wholeScreen = screen;
    QTemporaryDir folder;
    QWindow otherProgram;
    std::mt19937 random;
    int depth = 0;
    std::string trail;
    QAccessible::Id known = 0;
    int knownIndex = 0;
    bool mayHaveReset = false;
    int left = 0;
    std::int64_t score = 0;
    std::array<std::int64_t, rules::levels> best{};
};

using Storms = testing::TestWithParam<int>;

TEST_P(Storms, LeaveTheGameInOrder) {
    Storm storm(GetParam());
    for (int k = 0; k < 900 && !HasFailure(); ++k) {
        storm.trail.clear();
        for (int later = storm.draw(4); later > 0; --later) {
            QTimer::singleShot(0, qApp, [&] { storm.act(); });
        }
        storm.act();
        storm.expectOrder();
    }
    storm.expectThatTheNextGameCanBePlayed();
    EXPECT_FALSE(HasFailure()) << storm.trail;
    storm.window.reset();
}

const int rounds = std::max(qEnvironmentVariableIntValue("ROUNDS"), 1);
INSTANTIATE_TEST_SUITE_P(Seeds, Storms, testing::Range(0, 8 * rounds));

}  // namespace
}  // namespace mainwindow
