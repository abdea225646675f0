// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

/// The bytes of a settings file: `[section]` and `key=value` lines in UTF-8. Lines that begin with `;` or `#` are
/// comments.
///
/// Blanks around names and values are ignored. `\\` is a backslash and `\uXXXX` a UTF-16 code unit in four hexadecimal
/// digits, so that any text fits on a line; before any other character a backslash is an ordinary character. A line
/// ends with LF or CRLF, a byte-order mark is skipped, and keys above the first section belong to the section "". All
/// functions accept any bytes.
namespace settings {

/// Whether the bytes can be a settings file: UTF-8 without NUL, with at least one section, key or comment. An empty
/// file is not a settings file: an editor or the system has lost its content.
bool isIniFile(const QByteArray& file);

/// The text of a key, the last one if the key is there several times; nothing if it is absent.
std::optional<QString> valueIn(const QByteArray& file, const QString& section, const QString& key);

/// The file with a new text for one key. Every other line is unchanged, and so is the file if the key already has that
/// text.
QByteArray withValue(QByteArray file, const QString& section, const QString& key, const QString& text);

}  // namespace settings
