// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// A bot plays in the real window, without pauses. Each time that another test program is to look at this one, it says
// what it holds and waits for a line. Usage: soak games TIMES GAMES, or soak panel|about TIMES SECONDS

#include <iostream>
#include <stdexcept>

#include <QAbstractEventDispatcher>
#include <QTimer>
#include <malloc.h>

#include "platform/look.h"
#include "platform/yield.h"
#include "tests/mainwindow/world.h"

namespace {

struct Bot : mainwindow::World {
    std::mt19937 chance;

    void deal(int level, const char* Col) {
        select(level);
        type(Col, "14");
        command(0);
    }
    void play() {
        while (pressAnyGroup(chance)) {
        }
    }
    void waitForWindow() {
        if (!QTest::qWaitForWindowExposed(shown())) {
            throw std::runtime_error("no window");
        }
    }
    void openAbout() {
        QTest::mouseClick(control<QWidget>("Image1"), Qt::LeftButton);
        waitForWindow();
    }

    void playGames(int games) {
        for (int game = 0; game < games; ++game) {
            deal(static_cast<int>(chance() % 5), chance() % 3 == 0 ? "9" : "8");
            play();
            if (game % 5 == 0) {
                QTest::mouseClick(control<QWidget>("Frame1"), Qt::LeftButton);
            }
            if (game % 10 == 0) {
                openAbout();
                shown()->close();
                waitForWindow();
            }
        }
        deal(0, "8");
    }

    void tell(const char* unit, int number) {
        QGuiApplication::sync();
        const auto objects = window->findChildren<QObject*>() + shown()->findChildren<QObject*>() + qApp->children() +
                             QObjectList{window.get(), shown()};
        qsizetype timers = 0;
        for (QObject* object : objects) {
            timers += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
        }
        const auto memory = mallinfo2();
        std::cout << unit << ' ' << number << " timers " << timers << " objects " << objects.size() << " heap "
                  << memory.uordblks + memory.hblkhd << std::endl;
        std::cin.ignore();
    }

    void run(const std::string& what, int times, int each) {
        waitForWindow();
        if (what == "about") {
            openAbout();
        }
        while (what == "panel" && !control<QWidget>("Frame1")->isVisible()) {
            deal(0, "8");
            play();
        }
        for (int k = 1; k <= times; ++k) {
            what == "games" ? playGames(each) : QTest::qWait(1000 * each);
            tell(what == "games" ? "game" : "second", k * each);
        }
        QCoreApplication::exit();
    }
};

}  // namespace

int main(int, char* argv[]) {
    int argc = 1;
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    platform::applyLook();
    Bot bot;
    bot.store = settings::Store(settings::defaultPath(QCoreApplication::applicationFilePath()));
    bot.nextSeed = std::ref(bot.chance);
    bot.inPause = platform::yield;
    bot.open();
    const std::string what = argv[1];
    const int times = std::atoi(argv[2]);
    const int each = std::atoi(argv[3]);
    QTimer::singleShot(0, qApp, [&] { bot.run(what, times, each); });
    return QApplication::exec();
}
