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

/// Puts the bytes in the place of the file, which at every moment holds either the old or the new ones, even
/// over a power cut. Its mode stays, and so does a symbolic link that leads to it; a new one is for its owner alone.
/// False if it still holds the old ones, which one that may not be written to does.
bool replaceFile(const QString& path, const QByteArray& bytes);

/// Like `replaceFile`, but does not wait for the disk, so that a power cut may leave anything; neither mode
/// nor symbolic link stays.
bool replaceCopy(const QString& path, const QByteArray& bytes);

/// Removes what a killed `replaceFile` or `replaceCopy` of this path left behind. Nobody may be writing to
/// it.
void removeLeftovers(const QString& path);

/// Opens the file, creating it if needed, and locks it against other programs until it is closed. Waits while
/// another one holds it, at most `patience`, from which the time spent is taken off, stalls excepted. False if it is
/// not locked.
bool lock(QFile& file, std::chrono::nanoseconds& patience);

}  // namespace settings
