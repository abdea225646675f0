// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

#include <QByteArray>
#include <QString>

class QFile;

/// Reads and replaces small files as a whole. No function throws, and only `lock` waits for other programs.
namespace settings {

/// The largest file that is read, in bytes.
inline constexpr qsizetype maxFileSize = qsizetype{1} << 20;

struct FileContent {
    enum class State { missing, read, unavailable };
    State state = State::unavailable;
    QByteArray bytes;  // empty unless read
};

/// The content of the file at a path, after symbolic links. The state is `unavailable` if the file cannot be read to
/// its end, so that it must not be written over: no permission, a read error, a link loop, more than `maxFileSize`
/// bytes, or not a regular file.
FileContent readFile(const QString& path);

/// Creates the folder and its parents where they are missing, each accessible only to its owner, and syncs their
/// parents. Reports no failure: creating a file in a missing folder fails anyway.
void makeFolder(const QString& folder);

enum class Replaced {
    yes,
    no,           // the file holds the old bytes, or new bytes that a power cut may still undo
    onlyInPlace,  // the file holds the old bytes and is a mount point, which rename() cannot replace
};

/// Replaces the content of the file. At every moment, even after a power cut, the file holds either the old or the new
/// bytes; after `yes`, the new ones. The file keeps its mode if the file system can set modes; otherwise only its owner
/// can access it, as with a new file. Symbolic links to the file stay. A read-only file is not replaced.
Replaced replaceFile(const QString& path, const QByteArray& bytes);

/// Writes the bytes, at least one, into the existing file, if `replaceFile` cannot replace it. After a kill or a power
/// cut the file holds the old bytes, nothing, the first part of `unfinished`, or the new bytes. False if a step fails.
bool overwriteFile(const QString& path, const QByteArray& bytes);

/// The bytes with NUL instead of the first one: no reader accepts them as a settings file.
QByteArray unfinished(const QByteArray& bytes);

/// Like `replaceFile`, but does not wait for the disk: after a power cut the file may hold anything. Keeps neither mode
/// nor symbolic links. False if the old bytes are still there.
bool replaceCopy(const QString& path, const QByteArray& bytes);

/// Removes the temporary files that a killed `replaceFile` or `replaceCopy` of this path left behind. Call it only
/// while no other program writes to the path.
void removeLeftovers(const QString& path);

enum class Lock {
    held,
    heldByAnother,
    impossible,  // the file cannot be opened, or the file system cannot lock it
};

/// Opens the file, creating it if needed, and locks it against other programs until it is closed. If another program
/// holds the lock, waits at most `patience` and subtracts the time spent from it, except time during which this program
/// stalled.
Lock lock(QFile& file, std::chrono::nanoseconds& patience);

}  // namespace settings
