// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/store.h"

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <string>

#include <QFileInfo>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/settings/faults.h"
#include "tests/settings/folder.h"

using namespace std::chrono_literals;
using faults::plan;
using settings::Store;
using testing::AnyOf;

namespace {

const QString zero = u"0"_s;

struct StoreTest : testing::Test {
    void TearDown() override { plan() = {}; }

    /// Another copy holds the lock while this copy tries for it this many times.
    void keepLocked(int tries) const {
        plan() = {.folder = folder.path(), .only = "flock", .last = tries, .fault = EWOULDBLOCK};
    }

    Folder folder;
    Store store{folder.ini};
};

TEST_F(StoreTest, NeedsNoFileAndCreatesItsFolderAtTheFirstSave) {
    EXPECT_EQ(store.read(init, col, u"25"_s), u"25"_s);
    store.flush();
    EXPECT_EQ(folder.names(), u""_s);
    const QString deep = folder.folder.filePath(u"new/deep/game.ini"_s);
    Store(deep).write(init, col, u"30"_s);
    EXPECT_EQ(Store(deep).read(init, col, none), u"30"_s);
    EXPECT_FALSE(QFileInfo(folder.folder.filePath(u"new/deep"_s)).permissions() & 0xFF) << "open to others";

    folder.put("[init]\nCol=30\n", u".bak"_s);
    EXPECT_EQ(store.read(init, col, none), none) << "a file that was removed stays so";
}

TEST_F(StoreTest, SavesWholeThroughALinkAndOnlyWhenSomethingChanges) {
    folder.put("; mine\n[init]\nLig=2\n\n; notes\n[more]\nx=y\n", u".real"_s);
    for (const QString& name :
         {u".real.aBcDeF.part"_s, u".real.backup"_s, u".real.aBcDeFg.part"_s, u".real-aBcDeF.part"_s}) {
        folder.put("[init]\nLig=1", name);
    }
    chmod(QFile::encodeName(folder.ini + u".real"_s).constData(), 0640);
    QFile::link(folder.ini + u".real"_s, folder.ini);
    store.write(init, col, u"30"_s);
    EXPECT_EQ(folder.bytes(u".real"_s), "; mine\n[init]\nLig=2\nCol=30\n\n; notes\n[more]\nx=y\n");
    EXPECT_EQ(folder.bytes(u".bak"_s), folder.bytes(u".real"_s));
    EXPECT_EQ(QFileInfo(folder.ini).permissions() & 0xFFF, QFile::Permissions::fromInt(0x640));
    EXPECT_EQ(folder.names(),
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
    int moment = 0;
    do {
        ++moment;
        SCOPED_TRACE(moment);
        folder.put("[init]\n1=50\n0=120\n");
        Store another(folder.ini, 0s);
        const auto save = [&] {
            EXPECT_THAT(another.read(init, zero, none), AnyOf(u"120"_s, u"130"_s));
            another.raise(init, zero, u"20000"_s);
            another.raise(init, u"1"_s, u"70"_s);
        };
        plan() = {.folder = folder.path(), .first = moment, .last = moment, .meanwhile = save};
        EXPECT_THAT(store.read(init, zero, none), AnyOf(u"120"_s, u"20000"_s));
        EXPECT_THAT(store.raise(init, zero, u"130"_s), AnyOf(u"130"_s, u"20000"_s));
        plan().folder.clear();
        another.flush();
        EXPECT_EQ(folder.bytes(), plan().struck.empty() ? "[init]\n1=50\n0=130\n" : "[init]\n1=70\n0=20000\n");
    } while (!plan().struck.empty());
    EXPECT_GT(moment, 20);
}

TEST_F(StoreTest, AResetAndClosingWaitForAnotherCopysSave) {
    folder.put("[init]\n0=200\n");
    keepLocked(9);
    store.reset(init, zero);
    EXPECT_EQ(folder.bytes(), "[init]\n0=0\n");

    Store closing(folder.ini, 0s);
    keepLocked(9);
    plan().meanwhile = [&] { folder.put("[init]\n0=300\n"); };
    closing.raise(init, u"1"_s, u"5"_s);
    closing.flush();
    EXPECT_EQ(plan().seen, 10) << "it does not wait";
    EXPECT_EQ(folder.bytes(), "[init]\n0=300\n1=5\n");
}

TEST_F(StoreTest, WaitsForTheLockOnceAndAtClosingDoesWithoutIt) {
    folder.put("[init]\n0=120\n1=50\n");
    keepLocked(INT_MAX);
    EXPECT_EQ(store.raise(init, zero, u"130"_s), u"130"_s);
    EXPECT_GT(plan().seen, 100) << "in a second, it tries at least every ten milliseconds";
    EXPECT_LT(plan().seen, 1002) << "and at most every millisecond";
    plan().seen = 0;
    EXPECT_EQ(store.raise(init, zero, u"125"_s), u"130"_s);
    store.reset(init, u"1"_s);
    EXPECT_EQ(plan().seen, 2) << "it waits again";
    folder.put("[init]\n0=200\n1=70\n");  // by the other copy
    EXPECT_EQ(store.read(init, zero, none), u"200"_s);
    EXPECT_EQ(store.read(init, u"1"_s, none), u"70"_s) << "scored after the reset";
    store.write(init, col, u"30"_s);
    store.flush();
    EXPECT_EQ(folder.bytes(), "[init]\n0=200\n1=70\nCol=30\n");
}

TEST_F(StoreTest, LeavesAloneWhatIsNoSmallFileThatMayBeWritten) {
    const uid_t owner = geteuid();
    const uid_t user = owner == 0 ? 65534 : owner;
    for (const std::string make :
         {"mkfifo", "mkdir", "ln -s /dev/zero", "ln -s game.ini", "truncate -s 1G", "install -m 444 /dev/null"}) {
        SCOPED_TRACE(make);
        const Folder other;
        ASSERT_EQ(std::system(("cd " + other.path() + " && umask 0 && chmod 777 . && " + make + " game.ini").c_str()),
                  0);
        // Root may write to any file, even to a device, so save as another user.
        ASSERT_EQ(setresuid(user, user, -1), 0);
        Store(other.ini).write(init, col, u"30"_s);
        ASSERT_EQ(setresuid(owner, owner, -1), 0);
        EXPECT_EQ(Store(other.ini).read(init, col, none), none);
        EXPECT_EQ(other.names(), u"game.ini game.ini.lock"_s);
    }
}

}  // namespace
