// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

#include <QByteArray>
#include <QString>

class QFile;

/// Reads and replaces small files as a whole. No function throws, and only `lock` waits for other programs.
namespace settings {

/// Files larger than this number of bytes are not read.
inline constexpr qsizetype maxFileSize = qsizetype{1} << 20;

struct FileContent {
    enum class State { missing, read, unavailable };
    State state = State::unavailable;
    QByteArray bytes;  // empty unless the state is `read`
};

/// Reads the file at the path and follows symbolic links. The state is `missing` if there is no file. The state is
/// `unavailable` if the file cannot be read to its end: no permission, a read error, a link loop, more than
/// `maxFileSize` bytes, or not a regular file. The caller must not write over an unavailable file.
FileContent readFile(const QString& path);

/// Creates the folder and its missing parents, accessible only to their owner, and syncs the parent of each new folder.
/// Reports no failure: if the folder is still missing, creating a file in it fails.
void makeFolder(const QString& folder);

enum class Replaced {
    yes,
    no,           // the file holds the old bytes, or new bytes that a power cut may still undo
    onlyInPlace,  // the file holds the old bytes and is a mount point, which rename() cannot replace
};

/// Replaces the content of the file, or creates the file. At every moment, even after a power cut, the file holds
/// either the old or the new bytes. After `yes`, the file holds the new bytes. The file keeps its mode if the file
/// system can set modes. If the file is new, or its mode cannot be set, only the owner can access the file. Symbolic
/// links to the file stay. A read-only file is not replaced.
Replaced replaceFile(const QString& path, const QByteArray& bytes);

/// Writes `bytes` (at least one byte) into an existing file that `replaceFile` cannot replace. After a kill or a power
/// cut, the file holds the old bytes, the new bytes, no bytes, or bytes that begin with NUL. After a kill, the bytes
/// with NUL are the beginning of `unfinished(bytes)`, so that a later save can recognise them. Returns false if a step
/// fails.
bool overwriteFile(const QString& path, const QByteArray& bytes);

/// The bytes with NUL in place of the first byte, so that isIniFile() rejects them.
QByteArray unfinished(const QByteArray& bytes);

/// Like `replaceFile`, but does not wait for the disk: after a power cut, the file may hold anything. The file does not
/// keep its mode, and a symbolic link at the path is replaced. Returns false if the old bytes are still there.
bool replaceCopy(const QString& path, const QByteArray& bytes);

/// Removes the temporary files of this path that remain if the program is killed during `replaceFile` or `replaceCopy`.
/// Call this function only while no other program writes to the path.
void removeLeftovers(const QString& path);

enum class Lock {
    held,
    heldByAnother,
    impossible,  // the file cannot be opened, or the file system cannot lock it
};

/// Opens the file, creates it if it is missing, and locks it against other programs until it is closed. If another
/// program holds the lock, waits at most `patience`. Subtracts the time of this wait from `patience`, except time
/// during which this program was stalled.
Lock lock(QFile& file, std::chrono::nanoseconds& patience);

}  // namespace settings
