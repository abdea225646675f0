// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Usage: soak games|panel|about ROUNDS. A bot plays in the real window without pauses, or leaves the end-of-game panel
// or the About window open. After each round, it prints what the program holds, and waits for a line while soak.py
// measures the rest.

#include <iostream>

#include <QAbstractEventDispatcher>
#include <malloc.h>

#include "platform/look.h"
#include "platform/yield.h"
#include "tests/mainwindow/world.h"

namespace {

struct Bot : mainwindow::World {
    std::mt19937 chance;

    void playGame() {
        select(static_cast<int>(chance() % rules::levels));
        command(0);
        while (pressAnyGroup(chance)) {
        }
    }
    void openAbout() {
        QTest::mouseClick(control<QWidget>("Image1"), Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(shown()));
    }
    void playGames() {
        for (int game = 0; game < 50; ++game) {
            type(game % 2 == 0 ? "9" : "8", "14");
            playGame();
        }
        for (int visit = 0; visit < 5; ++visit) {
            openAbout();
            shown()->close();
            EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        }
        command(0);
    }

    void report() const {
        QGuiApplication::sync();
        const auto objects = window->findChildren<QObject*>() + shown()->findChildren<QObject*>() + qApp->children() +
                             QObjectList{window.get(), shown()};
        qsizetype timers = 0;
        for (QObject* object : objects) {
            timers += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
        }
        const auto memory = mallinfo2();
        std::cout << "timers " << timers << " objects " << objects.size() << " heap " << memory.uordblks + memory.hblkhd
                  << std::endl;
        std::cin.ignore();
    }
};

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    platform::applyLook();
    Bot bot;
    bot.store = settings::Store(settings::defaultPath(QCoreApplication::applicationFilePath()));
    bot.nextSeed = std::ref(bot.chance);
    bot.inPause = platform::yield;
    bot.set("Son", "0");
    bot.open();
    const std::string mode = argv[1];
    if (mode == "about") {
        bot.openAbout();
    }
    while (mode == "panel" && !bot.control<QWidget>("Frame1")->isVisible()) {
        bot.playGame();
    }
    for (int round = std::atoi(argv[2]); round > 0; --round) {
        if (mode == "games") {
            bot.playGames();
        } else {
            QTest::qWait(60'000);
        }
        bot.report();
    }
}
