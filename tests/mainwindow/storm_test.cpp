// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <climits>
#include <csignal>
#include <map>

#include <QAccessible>
#include <QCheckBox>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/process.h"
#include "rules/points.h"
#include "tests/mainwindow/world.h"
#include "tests/rules/plain.h"

// Off screen there is no screen reader: the program is to believe in one.
bool QAccessible::isActive() {
    return true;
}

namespace mainwindow {
namespace {

constexpr int storms = 8;
constexpr int actsInAll = 700;  // not counting those that come meanwhile
constexpr int deepest = 6;
constexpr platform::Box wholeScreen{0, 0, 24'000, 18'000};
constexpr std::array texts{"9", "12", "8", "", "x", "-5", "10.5", "1e9", "99999999999999999999", "é\\n\n"};
constexpr std::array numbers{INT_MIN, -113, -1, 0, 1, 2, 7, 8, 13, 14, 111, 112, 5000, INT_MAX};

/// A player, a desktop and a screen reader that act at random, and at once: whatever an act lets happen meanwhile,
/// others do. Beside the game, a book is kept of what it must stand at.
struct Storm : World {
    explicit Storm(int number) : random(number) {
        store = settings::Store(folder.filePath(u"game.ini"_s));
        nextSeed = [this] {
            takeDown();
            score = left = 0;
            return random();
        };
        inPause = [this] {
            takeDown();
            draw(3) == 0 ? act() : QCoreApplication::processEvents();
        };
        sound.meanwhile = [this] { act(); };
        elsewhere.show();
        start();
    }

    void start() {
        window.reset();
        screen = wholeScreen;
        open();
        set("Col", "open"), set("Lig", "open"), set("Son", "open");
        platform::onQuitSignal(*window, [this] { window->close(); });
        type("8", "14");
        command(0);
    }
    bool isClosed() const { return stored("Son") != "open"; }
    int draw(std::size_t count) { return static_cast<int>(random() % count); }
    template <typename Choices>
    typename Choices::value_type oneOf(const Choices& choices) {
        return choices[draw(choices.size())];
    }
    Qt::MouseButton button() { return static_cast<Qt::MouseButton>(1U << draw(3)); }
    void act() {
        if (depth < deepest && window != nullptr && !isClosed()) {
            ++depth;
            const auto& [name, perform] = acts[draw(draw(2) == 0 ? 3 : acts.size())];
            trail += '\n' + std::string(depth, ' ') + name;
            takeDown();
            perform();
            QCoreApplication::processEvents();
            --depth;
        }
    }

    void point() {
        const QPoint place(draw(shown()->width() + 40) - 20, draw(shown()->height() + 40) - 20);
        const QWidget* under = shown()->childAt(place);
        wasReset |= under != nullptr && under->objectName().endsWith(u"(2)"_s);
        const auto how = oneOf(std::array{QTest::MousePress, QTest::MouseRelease, QTest::MouseClick, QTest::MouseMove});
        QTest::mouseEvent(how, shown()->windowHandle(), button(), {}, place);
    }
    void key() {
        const int key = draw(2) == 0 ? Qt::Key_Space + draw(60) : Qt::Key_Escape + draw(60);
        const bool withControl = draw(3) == 0;
        wasReset |= withControl && key == Qt::Key_Delete;
        QWidget* hearer = shown()->focusWidget() == nullptr ? shown() : shown()->focusWidget();
        QTest::sendKeyEvent(QTest::Click, hearer, Qt::Key(key), QString(1, QChar(key & 127)),
                            withControl ? Qt::ControlModifier : Qt::NoModifier);
    }
    void hideForAWhile() {
        if (window->isVisible()) {
            window->hide();
            QCoreApplication::processEvents();
            window->setVisible(!isClosed() && shown() == window.get());
        }
    }
    void ask() {
        const int n = oneOf(numbers);
        const int m = oneOf(numbers);
        auto* it = QAccessible::queryAccessibleInterface(draw(2) == 0 ? cells() : shown());
        for (int deep = draw(4); deep > 0 && it->childCount() > 0; --deep) {
            it = it->child(draw(it->childCount()));
        }
        known.push_back(QAccessible::uniqueId(it));
        it = draw(2) == 0 ? QAccessible::accessibleInterface(oneOf(known)) : it;
        if (++asked; it == nullptr) {
            return;  // a cell of an earlier board
        }
        it->child(n), it->childAt(n, m), it->indexOfChild(it->parent()), it->rect(), it->state(), it->relations();
        it->text(static_cast<QAccessible::Text>(n & 7));
        if (auto* table = it->tableInterface()) {
            table->columnDescription(n), table->rowDescription(m), table->selectRow(n);
            EXPECT_TRUE(table->cellAt(n, m)->isValid()) << "a cell that stands nowhere";
        } else if (auto* cell = it->tableCellInterface()) {
            const std::pair place(cell->columnIndex(), cell->rowIndex());
            EXPECT_EQ(places.try_emplace(QAccessible::uniqueId(it), place).first->second, place) << "a cell that moved";
            cell->table()->indexOfChild(it);
        } else if (auto* text = it->textInterface()) {
            text->text(n, m), text->characterRect(n), text->setCursorPosition(n), text->addSelection(n, m);
        }
        if (auto* action = it->actionInterface(); action != nullptr && draw(20) == 0) {
            wasReset |= it->text(QAccessible::Name) == u"Zéro"_s;
            action->doAction(action->actionNames().value(draw(3)));
        }
    }

    // At each move's beginning, and when nothing is under way: at most one move is new.
    void takeDown() {
        const std::string line = window == nullptr ? "" : text("l1", 3);
        const int now = line.empty() ? left : std::stoi(line.substr(line.find_first_of("0123456789")));
        if (now < left) {
            score = (score + rules::pointsFor(left - now)) * (now == 0 ? 2 : 1);
            best.at(game().Diff) = std::max(best.at(game().Diff), score);
        }
        left = now;
    }
    void expectOrder() {
        takeDown();
        rules::Board settled = game().board;
        plain::settle(settled);
        EXPECT_EQ(game().board, settled);
        EXPECT_EQ(std::ssize(settled.cells) - std::ranges::count(settled.cells, rules::Code::none), game().Total);
        EXPECT_EQ(text("sc"), std::to_string(score)) << "the sum of the moves";
        EXPECT_TRUE(game().Total <= 1 || !control<QWidget>("Frame1")->isVisible()) << "the panel of a game before";
        EXPECT_TRUE(game().board.contains(cells()->cursorCell()));
        for (int level = 0; level < 5; ++level) {
            const auto now = std::atoll(stored(std::to_string(level).c_str()).c_str());
            EXPECT_TRUE(now == best.at(level) || wasReset) << "best score " << now << ", not " << best.at(level);
            best.at(level) = now;
        }
        wasReset = false;
        EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(), &QWidget::isVisible), isClosed() ? 0 : 1);
        if (isClosed()) {
            const char* Son = control<QCheckBox>("Check1")->isChecked() ? "1" : "0";
            EXPECT_EQ(stored("Col") + stored("Lig") + stored("Son"), box(1) + box(0) + Son);
            start();
        }
    }
    void expectAMove() {
        depth = deepest;  // no more acts
        for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
            QTest::mouseRelease(shown()->windowHandle(), button);
        }
        shown() != window.get() && shown()->close();
        screen = wholeScreen;
        command(0);
        EXPECT_TRUE(pressAnyGroup(random) && game().Total < game().NBBoules) << "stuck";
    }

    const std::vector<std::pair<const char*, std::function<void()>>> acts{
        {"press a group", [this] { window->isVisible() && pressAnyGroup(random); }},
        {"point", [this] { point(); }},
        {"key", [this] { key(); }},
        {"new game", [this] { command(0); }},
        {"reset", [this] { wasReset = true, command(2); }},
        {"level", [this] { select(draw(5)); }},
        {"type", [this] { type(oneOf(texts), oneOf(texts)); }},
        {"sound", [this] { control<QCheckBox>("Check1")->click(); }},
        {"resize", [this] { shown()->windowHandle()->resize(1 + draw(900), 1 + draw(900)); }},
        {"move", [this] { shown()->windowHandle()->setPosition(draw(9000) - 4500, draw(9000) - 4500); }},
        {"focus", [this] { (draw(2) == 0 ? &elsewhere : shown()->windowHandle())->requestActivate(); }},
        {"hide", [this] { hideForAWhile(); }},
        {"minimise", [this] { shown()->setWindowState(shown()->windowState() ^ Qt::WindowMinimized); }},
        {"help", [this] { QTest::mousePress(control<QWidget>("Image1"), button()); }},
        {"leave", [this] { shown() != window.get() && shown()->close(); }},
        {"panel", [this] { QTest::mouseClick(control<QWidget>("Frame1"), Qt::LeftButton); }},
        {"screen", [this] { screen.Width = 3'000 + 300 * draw(12), screen.Height = 300 * draw(20); }},
        {"ask", [this] { std::ranges::for_each(std::array<int, 100>{}, [this](int) { ask(); }); }},
        {"wait", [] { QTest::qWait(1); }},
        {"close", [this] { draw(2) == 0 ? command(1) : static_cast<void>(window->close()); }},
        {"signal",
         [this] {
             std::raise(oneOf(std::vector{SIGTERM, SIGINT, SIGHUP}));
         }},
    };

    QTemporaryDir folder;
    QWindow elsewhere;
    std::mt19937 random;
    int depth = 0;
    std::string trail;
    int asked = 0;
    std::vector<QAccessible::Id> known;
    std::map<QAccessible::Id, std::pair<int, int>> places;
    bool wasReset = false;
    int left = 0;
    std::int64_t score = 0;
    std::array<std::int64_t, 5> best{};
};

struct Storms : testing::TestWithParam<int> {};

TEST_P(Storms, LeaveTheGameInOrder) {
    Storm storm(GetParam());
    for (int k = 0; k < actsInAll && !HasFailure(); ++k) {
        for (int meanwhile = storm.draw(4); meanwhile > 0; --meanwhile) {
            QTimer::singleShot(0, qApp, [&] { storm.act(); });
        }
        storm.act();
        storm.expectOrder();
    }
    storm.expectAMove();
    EXPECT_GT(storm.asked, 10'000 / storms);
    EXPECT_FALSE(HasFailure()) << storm.trail.substr(std::max<std::size_t>(storm.trail.size(), 400) - 400);
    storm.window.reset();
}

const int rounds = std::max(qEnvironmentVariableIntValue("ROUNDS"), 1);
INSTANTIATE_TEST_SUITE_P(Seeds, Storms, testing::Range(0, storms* rounds));

}  // namespace
}  // namespace mainwindow
