// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

/// The bytes of a settings file: `[section]` and `key=value` lines in UTF-8, comments behind `;` or `#`.
///
/// Blanks around names and values do not count. `\\` is a backslash and `\uXXXX` a UTF-16 code unit in four
/// hexadecimal digits, so that any text fits on a line; a backslash before anything else stands for itself. A
/// line ends with LF or CRLF, a byte-order mark is skipped, and keys above the first section belong to the
/// section "". None of the functions fails, whatever the bytes.
namespace settings {

/// Whether the bytes can be a settings file: UTF-8 without NUL, with a section, a key or a comment among the
/// lines. An empty file is none: some editor or system has lost what was in it.
bool isIniFile(const QByteArray& file);

/// The text of a key, the last one if the section holds it several times; nothing if it is absent.
std::optional<QString> valueIn(const QByteArray& file, const QString& section, const QString& key);

/// The file with one text put in its place. Every other line stays as it is; if the key has that text
/// already, the whole file does.
QByteArray withValue(QByteArray file, const QString& section, const QString& key, const QString& text);

}  // namespace settings
