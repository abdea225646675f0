// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/safe_file.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <thread>

#include <QDir>
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

// A temporary file is named like the original file, followed by a dot, six random letters and this suffix.
// removeLeftovers() removes every file with such a name.
constexpr std::string_view temporarySuffix = ".part";

bool isTemporaryName(std::string_view name, std::string_view original) {
    return name.size() == original.size() + 7 + temporarySuffix.size() && name.starts_with(original) &&
           name[original.size()] == '.' && name.ends_with(temporarySuffix);
}

/// The path to which symbolic links lead from this path, even if there is no file. For a link loop, one of its links.
QString targetOf(QString path) {
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks && QFileInfo(path).isSymLink(); ++links) {
        path = QFileInfo(path).symLinkTarget();
    }
    return path;
}

/// A temporary file. move() renames it over the file at `path`. Without a successful move(), the destructor removes the
/// temporary file.
struct Replacement : QTemporaryFile {
    explicit Replacement(const QString& path)
        : QTemporaryFile(path + u".XXXXXX"_s + QLatin1StringView(temporarySuffix)), place(QFile::encodeName(path)) {}

    bool holds(const QByteArray& bytes) { return open() && write(bytes) == bytes.size() && flush(); }

    /// Returns 0 on success, and an errno value on failure.
    int move() const {
        return std::rename(QFile::encodeName(fileName()).constData(), place.constData()) == 0 ? 0 : errno;
    }

    QByteArray place;
};

/// Whether a save may continue after this result of a system call. It may if the call succeeded, or if the file system
/// does not support or permit the call. Any other error stops the save: the disk may not hold the bytes. EROFS stops
/// the save, too: fsync() reports EROFS when a damaged file system has become read-only.
bool succeededOrUnsupported(int result) {
    return result == 0 || errno == EACCES || errno == EPERM || errno == EINVAL || errno == ENOSYS ||
           errno == EOPNOTSUPP;
}

bool syncFolder(const QString& folder) {
    const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        return succeededOrUnsupported(descriptor);
    }
    const bool isSynced = succeededOrUnsupported(fsync(descriptor));
    close(descriptor);
    return isSynced;
}

}  // namespace

FileContent readFile(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status {};
    if (stat(name.constData(), &status) != 0) {
        return {errno == ENOENT ? FileContent::State::missing : FileContent::State::unavailable, {}};
    }
    // Open only regular files. Opening a FIFO, for example, would wake its writer.
    if (!S_ISREG(status.st_mode)) {
        return {};
    }
    QFile file;
    const int descriptor = open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle)) {
        return {};
    }
    // Another copy of the program may have replaced the file since stat(). So take the size of the open file.
    if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > maxFileSize) {
        return {};
    }
    QByteArray bytes = file.read(status.st_size);
    // If a read error comes after the first bytes, read() only returns fewer bytes.
    if (bytes.size() != status.st_size) {
        return {};
    }
    return {FileContent::State::read, bytes};
}

void makeFolder(const QString& folder) {
    const QString parent = QFileInfo(folder).path();
    if (parent == folder || folder.size() >= PATH_MAX || QFileInfo::exists(folder)) {
        return;
    }
    makeFolder(parent);
    if (QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) {
        syncFolder(parent);
    }
}

Replaced replaceFile(const QString& path, const QByteArray& bytes) {
    const QString target = targetOf(path);
    const QByteArray name = QFile::encodeName(target);
    struct stat old {};
    const bool exists = stat(name.constData(), &old) == 0;
    if (exists ? access(name.constData(), W_OK) != 0 : errno != ENOENT) {
        return Replaced::no;
    }
    Replacement file(target);
    if (!file.holds(bytes) || (exists && !succeededOrUnsupported(fchmod(file.handle(), old.st_mode & 07777))) ||
        !succeededOrUnsupported(fdatasync(file.handle()))) {
        return Replaced::no;
    }
    if (const int error = file.move(); error != 0) {
        return error == EBUSY || error == EXDEV ? Replaced::onlyInPlace : Replaced::no;
    }
    return syncFolder(QFileInfo(target).path()) ? Replaced::yes : Replaced::no;
}

bool overwriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    // Between two syncs, the disk may write in any order. So all bytes are written first, with NUL in place of the
    // first byte, and synced. The first byte comes last: it makes the file valid.
    const auto isSynced = [&] { return succeededOrUnsupported(fsync(file.handle())); };
    return file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Unbuffered) && isSynced() &&
           file.write(unfinished(bytes)) == bytes.size() && isSynced() && file.seek(0) &&
           file.write(bytes.first(1)) == 1 && isSynced();
}

QByteArray unfinished(const QByteArray& bytes) {
    return bytes.isEmpty() ? bytes : '\0' + bytes.sliced(1);
}

bool replaceCopy(const QString& path, const QByteArray& bytes) {
    Replacement file(path);
    return file.holds(bytes) && file.move() == 0;
}

void removeLeftovers(const QString& path) {
    std::error_code error;
    const std::filesystem::path file = QFile::encodeName(targetOf(path)).toStdString();
    // Do not use QDir here: it calls stat() on every file of the folder.
    std::filesystem::directory_iterator entry(file.parent_path(), error);
    for (; entry != end(entry); entry.increment(error)) {
        if (isTemporaryName(entry->path().filename().native(), file.filename().native()) &&
            is_regular_file(entry->symlink_status(error))) {
            remove(entry->path(), error);
        }
    }
}

Lock lock(QFile& file, std::chrono::nanoseconds& patience) {
    using Clock = std::chrono::steady_clock;
    if (!file.open(QIODevice::ReadWrite)) {
        return Lock::impossible;
    }
    constexpr std::chrono::nanoseconds longestTry = std::chrono::milliseconds(10);
    while (flock(file.handle(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) {
            return Lock::impossible;
        }
        if (patience <= std::chrono::nanoseconds::zero()) {
            return Lock::heldByAnother;
        }
        const auto begin = Clock::now();
        std::this_thread::sleep_for(std::min<std::chrono::nanoseconds>(patience, std::chrono::milliseconds(1)));
        // If the system stalls this program during the sleep, only `longestTry` counts against `patience`.
        patience -= std::min<std::chrono::nanoseconds>(longestTry, Clock::now() - begin);
    }
    return Lock::held;
}

}  // namespace settings
