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
#include <QIODevice>
#include <QSaveFile>
#include <QTemporaryFile>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace settings {

namespace {

/// Whether Qt may have made the name for a temporary file beside the other one. It appends six letters at
/// random; those that a person may have written are spared (one of 22), since `settings.ini.Backup` would be
/// somebody's copy.
bool isTemporaryName(std::string_view name, std::string_view original) {
    const auto isUpper = [](char c) { return c >= 'A' && c <= 'Z'; };
    const auto isLetter = [=](char c) { return isUpper(c) || (c >= 'a' && c <= 'z'); };
    if (name.size() != original.size() + 7 || !name.starts_with(original) || name[original.size()] != '.') {
        return false;
    }
    const std::string_view letters = name.substr(original.size() + 1);
    const auto isWord = [=](std::string_view word) { return std::ranges::none_of(word, isUpper); };
    return std::ranges::all_of(letters, isLetter) && !isWord(letters.substr(1)) &&
           !std::ranges::all_of(letters, isUpper);
}

}  // namespace

FileContent readFile(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status {};
    if (stat(name.constData(), &status) != 0) {
        return {errno == ENOENT ? FileContent::State::missing : FileContent::State::unavailable, {}};
    }
    // Opening is not free of effects on what is no regular file: a FIFO would let its writer go on.
    if (!S_ISREG(status.st_mode) || status.st_size > maxFileSize) {
        return {};
    }
    QFile file;
    const int descriptor = open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle)) {
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
    QSaveFile file(path);
    // commit() ignores a failed flush and a failed sync.
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           fdatasync(file.handle()) == 0 && file.commit();
}

bool replaceCopy(const QString& path, const QByteArray& bytes) {
    QTemporaryFile file(path + u".XXXXXX"_s);
    return file.open() && file.write(bytes) == bytes.size() && file.flush() &&
           std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) == 0;
}

void removeLeftovers(const QString& path) {
    std::error_code error;
    const std::filesystem::path name = QFile::encodeName(path).toStdString();
    const std::filesystem::path target = canonical(name, error);
    const std::filesystem::path& file = target.empty() ? name : target;
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
    while (flock(file.handle(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK || patience <= std::chrono::nanoseconds::zero()) {
            return false;
        }
        const auto begin = Clock::now();
        std::this_thread::sleep_for(std::min<std::chrono::nanoseconds>(patience, std::chrono::milliseconds(1)));
        patience -= Clock::now() - begin;
    }
    return true;
}

}  // namespace settings
