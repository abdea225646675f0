// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

#include <QByteArray>
#include <QString>

class QFile;

/// Reading and replacing small files whole. None of it throws, and none of it waits for another program but
/// `lock`.
namespace settings {

/// The largest file that is read, in bytes.
inline constexpr qsizetype maxFileSize = qsizetype{1} << 20;

struct FileContent {
    enum class State { missing, read, unavailable };
    State state = State::unavailable;
    QByteArray bytes;  // empty unless read
};

/// What lies at a path, symbolic links followed. Unavailable is whatever cannot be read to its end and must
/// therefore not be written over: no permission, a read error, a link loop, more than `maxFileSize` bytes, or
/// no regular file.
FileContent readFile(const QString& path);

/// Makes the folder and those above it where they are missing, each for its owner alone, and syncs where they were
/// made. It reports no failure: without the folder, no file can be made in it.
void makeFolder(const QString& folder);

enum class Replaced {
    yes,
    no,           // the file holds the old bytes, or new ones that a power cut may still undo
    onlyInPlace,  // the file holds the old bytes and cannot be renamed over: it is a mount point
};

/// Puts the bytes in the place of the file, which at every moment, even over a power cut, holds either the old or the
/// new ones; after `yes`, the new ones. The file keeps its mode if the file system lets it be set, otherwise it is for
/// its owner alone, like a new file. A symbolic link that leads to the file stays. A file that may not be written to is
/// not replaced.
Replaced replaceFile(const QString& path, const QByteArray& bytes);

/// Writes the bytes, at least one, into the file itself, for a file that `replaceFile` cannot replace. A kill or a
/// power cut leaves the old bytes, an empty file, a beginning of `unfinished`, or the new bytes.
bool overwriteFile(const QString& path, const QByteArray& bytes);

/// The bytes with NUL in place of the first one, so that no reader takes them for a settings file.
QByteArray unfinished(const QByteArray& bytes);

/// Like `replaceFile`, but does not wait for the disk, so that a power cut may leave anything; neither mode
/// nor symbolic link stays.
bool replaceCopy(const QString& path, const QByteArray& bytes);

/// Removes what a killed `replaceFile` or `replaceCopy` of this path left behind. Nobody may be writing to
/// it.
void removeLeftovers(const QString& path);

enum class Lock {
    held,
    heldByAnother,
    impossible,  // the file cannot be opened, or the file system cannot lock it
};

/// Opens the file, creating it if needed, and locks it against other programs until it is closed. Waits while
/// another one holds it, at most `patience`, from which the time spent is taken off, stalls excepted.
Lock lock(QFile& file, std::chrono::nanoseconds& patience);

}  // namespace settings
