// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

/// Reads and changes the bytes of a settings file: `[section]` and `key=value` lines in UTF-8. Lines that begin with
/// `;` or `#` are comments.
///
/// Blanks around names and values are ignored. `\\` means a backslash, and `\uXXXX` means the UTF-16 code unit with the
/// hexadecimal digits XXXX, so that every text fits on one line. Any other backslash is an ordinary character. A line
/// ends with LF or CRLF. A byte-order mark at the start of the file is skipped. Keys above the first section belong to
/// the section "". All functions accept any bytes.
namespace settings {

/// Whether the bytes can be a settings file: UTF-8 without NUL, with at least one section, key or comment. An empty
/// file does not count: an editor or the system has lost its content.
bool isIniFile(const QByteArray& file);

/// The text of the key. If the section has the key several times, the last one counts. Returns nullopt if the key is
/// absent.
std::optional<QString> valueIn(const QByteArray& file, const QString& section, const QString& key);

/// Returns the file with `text` as the text of the key. Adds the section and the key if they are absent. No other line
/// changes. If the key already has this text, the file stays unchanged.
QByteArray withValue(QByteArray file, const QString& section, const QString& key, const QString& text);

}  // namespace settings
