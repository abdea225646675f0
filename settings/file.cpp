// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <thread>

#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QTemporaryFile>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace settings {

namespace {

// Of the file that takes the place of another one, behind a dot and six letters. Whatever ends so is ours to remove.
constexpr std::string_view temporarySuffix = ".part";

bool isTemporaryName(std::string_view name, std::string_view original) {
    return name.size() == original.size() + 7 + temporarySuffix.size() && name.starts_with(original) &&
           name[original.size()] == '.' && name.ends_with(temporarySuffix);
}

/// Where a symbolic link leads to in the end, even if nothing is there; any other path is its own target.
QString targetOf(const QString& path) {
    const QFileInfo file(path);
    if (!file.isSymLink()) {
        return path;
    }
    return file.exists() ? file.canonicalFilePath() : file.symLinkTarget();
}

/// A file that is removed again unless it is moved in the place of the other one.
struct Replacement : QTemporaryFile {
    explicit Replacement(const QString& path)
        : QTemporaryFile(path + u".XXXXXX"_s + QLatin1StringView(temporarySuffix)), place(QFile::encodeName(path)) {}

    bool holds(const QByteArray& bytes) { return open() && write(bytes) == bytes.size() && flush(); }
    bool moves() const { return std::rename(QFile::encodeName(fileName()).constData(), place.constData()) == 0; }

    QByteArray place;
};

}  // namespace

FileContent readFile(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status {};
    if (stat(name.constData(), &status) != 0) {
        return {errno == ENOENT ? FileContent::State::missing : FileContent::State::unavailable, {}};
    }
    // Opening is not free of effects on what is no regular file: a FIFO would let its writer go on.
    if (!S_ISREG(status.st_mode)) {
        return {};
    }
    QFile file;
    const int descriptor = open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle)) {
        return {};
    }
    // Another copy may have put its file here meanwhile: the size is that of the one that is open.
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > maxFileSize) {
        return {};
    }
    QByteArray bytes = file.read(status.st_size);
    // A read error after the first bytes shows only as a short read.
    if (bytes.size() != status.st_size) {
        return {};
    }
    return {FileContent::State::read, bytes};
}

bool replaceFile(const QString& path, const QByteArray& bytes) {
    const QFileInfo old(targetOf(path));
    if (old.exists() && !old.isWritable()) {
        return false;
    }
    Replacement file(old.filePath());
    return file.holds(bytes) && (!old.exists() || file.setPermissions(old.permissions())) &&
           fdatasync(file.handle()) == 0 && file.moves();
}

bool replaceCopy(const QString& path, const QByteArray& bytes) {
    Replacement file(path);
    return file.holds(bytes) && file.moves();
}

void removeLeftovers(const QString& path) {
    std::error_code error;
    const std::filesystem::path file = QFile::encodeName(targetOf(path)).toStdString();
    // Not QDir, which looks at each file of what may be a large folder.
    std::filesystem::directory_iterator entry(file.parent_path(), error);
    for (; entry != end(entry); entry.increment(error)) {
        if (isTemporaryName(entry->path().filename().native(), file.filename().native()) &&
            is_regular_file(entry->symlink_status(error))) {
            remove(entry->path(), error);
        }
    }
}

bool lock(QFile& file, std::chrono::nanoseconds& patience) {
    using Clock = std::chrono::steady_clock;
    if (!file.open(QIODevice::ReadWrite)) {
        return false;
    }
    constexpr std::chrono::nanoseconds longestTry = std::chrono::milliseconds(10);
    while (flock(file.handle(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK || patience <= std::chrono::nanoseconds::zero()) {
            return false;
        }
        const auto begin = Clock::now();
        std::this_thread::sleep_for(std::min<std::chrono::nanoseconds>(patience, std::chrono::milliseconds(1)));
        // What a stall of this program adds is no waiting for the other one.
        patience -= std::min<std::chrono::nanoseconds>(longestTry, Clock::now() - begin);
    }
    return true;
}

}  // namespace settings
