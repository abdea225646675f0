// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/store.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include <QFileInfo>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/settings/folder.h"

using namespace std::chrono_literals;
using settings::Store;

namespace {

const QString zero = u"0"_s;

struct StoreTest : testing::Test {
    Folder folder;
    Store store{folder.ini};
};

TEST_F(StoreTest, NeedsNoFileAndCreatesItsFolderAtTheFirstSave) {
    EXPECT_EQ(store.read(init, col, u"25"_s), u"25"_s);
    store.flush();
    EXPECT_TRUE(folder.names().isEmpty());
    const QString deep = folder.folder.filePath(u"new/deep/game.ini"_s);
    Store(deep).write(init, col, u"30"_s);
    EXPECT_EQ(Store(deep).read(init, col, none), u"30"_s);
    EXPECT_FALSE(QFileInfo(folder.folder.filePath(u"new/deep"_s)).permissions() & 0xFF) << "open to others";

    folder.put("[init]\nCol=30\n", u".bak"_s);
    EXPECT_EQ(store.read(init, col, none), none) << "a file that was removed stays so";

    Store memory{QString()};
    EXPECT_EQ(memory.raise(init, zero, u"5"_s), u"5"_s);
    EXPECT_EQ(memory.raise(init, zero, u"4"_s), u"5"_s);
    EXPECT_EQ(memory.raise(init, zero, u"6"_s), u"6"_s);
}

TEST_F(StoreTest, SavesWholeThroughALinkAndOnlyWhenSomethingChanges) {
    folder.put("; mine\n[other]\nx=y\n[init]\nLig=2\n", u".real"_s);
    for (const QString& leftover : {u".real.aBcDeF.part"_s, u".bak.ghijkl.part"_s, u".bad.MNOPQR.part"_s,
                                    u".real.backup"_s, u".real.aBcDeFg.part"_s, u".real-aBcDeF.part"_s}) {
        folder.put("[init]\nLig=1", leftover);
    }
    chmod(QFile::encodeName(folder.ini + u".real"_s).constData(), 0640);
    QFile::link(folder.ini + u".real"_s, folder.ini);
    store.write(init, col, u"30"_s);
    EXPECT_EQ(folder.bytes(u".real"_s), "; mine\n[other]\nx=y\n[init]\nLig=2\nCol=30\n");
    EXPECT_EQ(folder.bytes(u".bak"_s), folder.bytes(u".real"_s));
    EXPECT_EQ(QFileInfo(folder.ini).permissions() & 0xFFF, QFile::Permissions::fromInt(0x640));
    EXPECT_EQ(folder.names().join(u' '),
              u"game.ini game.ini.bak game.ini.lock game.ini.real game.ini.real-aBcDeF.part "
              u"game.ini.real.aBcDeFg.part game.ini.real.backup"_s);
    folder.put("damaged", u".bak"_s);
    store.write(init, col, u"30"_s);
    EXPECT_EQ(folder.bytes(u".bak"_s), "damaged");
}

TEST_F(StoreTest, ATextTooLongToReadOrAFolderForALockHoldsNothingElseBack) {
    QDir().mkdir(folder.ini + u".lock"_s);
    store.write(init, u"Lig"_s, QString(1 << 20, u'x'));
    store.write(init, col, u"30"_s);
    EXPECT_EQ(folder.bytes(), "[init]\nCol=30\n");
    EXPECT_EQ(store.read(init, u"Lig"_s, none).size(), 1 << 20);
    const QString longest((1 << 20) - folder.bytes().size() - 5, u'x');  // beside "Lig=" and the end of its line
    store.write(init, u"Lig"_s, longest);
    EXPECT_EQ(Store(folder.ini).read(init, u"Lig"_s, none), longest);
}

TEST_F(StoreTest, TwoCopiesNeverLowerABestScore) {
    constexpr int highest = 4000;
    const pid_t child = fork();
    int falls = 0;
    for (int score = child == 0 ? 1 : 2; score <= highest; score += 2) {
        for (const QString& level : {zero, u"1"_s}) {
            const auto stored = [&] { return Store(folder.ini).read(init, level, zero).toInt(); };
            const int least = std::max(stored(), score);
            // Texts of many lengths: a reader must not measure one file and read the next.
            Store(folder.ini, 60s).raise(init, level, QString(score % 5, u'0') + QString::number(score));
            falls += stored() < least ? 1 : 0;
        }
    }
    if (child == 0) {
        _exit(falls == 0 ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(falls + status, 0) << "how often a score was found lower than it was";
    EXPECT_EQ(folder.bytes(), "[init]\n0=%1\n1=%1\n"_ba.replace("%1", QByteArray::number(highest)));
}

TEST_F(StoreTest, AResetAndClosingWaitForAnotherCopysSave) {
    const auto during = [&](Store copy, void (*change)(Store&)) {
        folder.put("[init]\n0=120\n");
        QFile other(folder.ini + u".lock"_s);
        ASSERT_TRUE(other.open(QIODevice::ReadWrite) && flock(other.handle(), LOCK_EX) == 0);
        std::thread save([&] {
            std::this_thread::sleep_for(100ms);
            folder.put("[init]\n0=200\n");
            other.close();
        });
        change(copy);
        save.join();
    };
    during(Store(folder.ini, 60s), [](Store& copy) { copy.reset(init, zero); });
    EXPECT_EQ(folder.bytes(), "[init]\n0=0\n") << "the reset must win";
    // Again if the machine was so busy that closing waited in vain.
    for (int round = 0; round < 5 && folder.bytes() != "[init]\n0=200\n1=5\n"; ++round) {
        during(Store(folder.ini, 0s), [](Store& copy) {
            copy.raise(init, u"1"_s, u"5"_s);
            copy.flush();
        });
    }
    EXPECT_EQ(folder.bytes(), "[init]\n0=200\n1=5\n");
}

TEST_F(StoreTest, WaitsForTheLockOnceAndAtClosingDoesWithoutIt) {
    using Clock = std::chrono::steady_clock;
    folder.put("[init]\n0=120\n1=50\n");
    QFile other(folder.ini + u".lock"_s);
    ASSERT_TRUE(other.open(QIODevice::ReadWrite) && flock(other.handle(), LOCK_EX) == 0);
    const auto begin = Clock::now();
    EXPECT_EQ(store.raise(init, zero, u"130"_s), u"130"_s);
    EXPECT_GE(Clock::now() - begin, 1s);
    for (int i = 0; i < 30; ++i) {
        store.write(init, col, u"30"_s);
    }
    EXPECT_LT(Clock::now() - begin, 15s) << "each of the saves waits";
    store.reset(init, u"1"_s);
    folder.put("[init]\n0=200\n1=70\n");  // by the other copy
    EXPECT_EQ(store.read(init, zero, none), u"200"_s);
    EXPECT_EQ(store.read(init, u"1"_s, none), u"70"_s) << "scored after the reset";
    store.flush();
    EXPECT_EQ(folder.bytes(), "[init]\n0=200\n1=70\nCol=30\n");
}

}  // namespace
