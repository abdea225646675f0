// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/store.h"

#include <algorithm>

#include <QFile>
#include <QFileInfo>

#include "settings/ini_file.h"
#include "settings/number.h"
#include "settings/safe_file.h"

using namespace Qt::StringLiterals;

namespace settings {

namespace {

constexpr QLatin1StringView backupSuffix = ".bak"_L1;
constexpr QLatin1StringView rejectedSuffix = ".bad"_L1;
constexpr QLatin1StringView lockSuffix = ".lock"_L1;

/// The text to store when `current` is raised to `text`. It is `text`, unless `current` is a number and `text` is not a
/// higher one.
QString raised(const QString& current, const QString& text) {
    const std::optional<double> before = numberIn(current);
    const std::optional<double> after = numberIn(text);
    return before && (!after || *before >= *after) ? current : text;
}

}  // namespace

Store::Store(QString iniPath, std::chrono::nanoseconds longestWait) : path(std::move(iniPath)), patience(longestWait) {}

QString Store::read(const QString& section, const QString& key, const QString& fallback) const {
    const Stored now = stored();
    const auto change = unsaved.find({section, key});
    if (change != unsaved.end()) {
        return textAfter(now, change->first, change->second);
    }
    return valueIn(now.settings, section, key).value_or(fallback);
}

void Store::write(const QString& section, const QString& key, const QString& text) {
    unsaved[{section, key}] = {Change::Kind::write, text};
    save(Locking::required);
}

QString Store::raise(const QString& section, const QString& key, const QString& text) {
    const auto [change, isFirst] = unsaved.try_emplace({section, key}, Change{Change::Kind::raise, text});
    if (!isFirst) {
        change->second.text = raised(change->second.text, text);
    }
    save(Locking::required);
    return read(section, key, text);
}

void Store::reset(const QString& section, const QString& key) {
    write(section, key, u"0"_s);
    const auto change = unsaved.find({section, key});
    if (change != unsaved.end()) {
        change->second.kind = Change::Kind::reset;
        if (const Stored now = stored(); now.available) {
            change->second.fileAtRequest = now.file;
        }
    }
}

void Store::flush() {
    // Wait up to 200 ms even if `patience` is used up: two copies of the program that save without the lock can undo
    // each other's changes.
    patience = std::max<std::chrono::nanoseconds>(patience, std::chrono::milliseconds(200));
    save(Locking::attempted);
}

Store::Stored Store::stored() const {
    const FileContent file = readFile(path);
    if (file.state == FileContent::State::unavailable) {
        return {};
    }
    if (file.state == FileContent::State::missing || isIniFile(file.bytes)) {
        return {true, file.bytes, file.bytes};
    }
    const FileContent backup = readFile(path + backupSuffix);
    return {backup.state != FileContent::State::unavailable, isIniFile(backup.bytes) ? backup.bytes : QByteArray(),
            file.bytes};
}

/// The text that the key has after the change is saved.
QString Store::textAfter(const Stored& stored, const Name& name, const Change& change) {
    const bool isLate = change.fileAtRequest && *change.fileAtRequest != stored.file;
    if (change.kind == Change::Kind::write || (change.kind == Change::Kind::reset && !isLate)) {
        return change.text;
    }
    // A raise keeps a stored number that is higher. A late reset keeps any stored score: another copy of the program
    // may have stored it after the reset was requested.
    const std::optional<QString> current = valueIn(stored.settings, name.first, name.second);
    return current ? raised(*current, change.text) : change.text;
}

void Store::save(Locking locking) {
    if (path.isEmpty() || unsaved.empty()) {
        return;
    }
    makeFolder(QFileInfo(path).path());
    QFile lockFile(path + lockSuffix);
    const Lock lockState = lock(lockFile, patience);
    // If another copy holds the lock, a later save stores the changes. If the file system cannot lock, save without the
    // lock: waiting does not help, and the program could be killed before a later save.
    if (lockState == Lock::heldByAnother && locking == Locking::required) {
        return;
    }
    const Stored old = stored();
    if (!old.available) {
        return;
    }
    QByteArray settings = old.settings;
    std::map<Name, Change> unsavable;
    for (const auto& [name, change] : unsaved) {
        const QByteArray next = withValue(settings, name.first, name.second, textAfter(old, name, change));
        if (next.size() <= maxFileSize) {
            settings = next;
        } else {
            unsavable.emplace(name, change);
        }
    }
    // After a failed sync, write everything again: a second sync may report success although the bytes are not on the
    // disk.
    if (settings != old.file || !isOnDisk) {
        if (lockState == Lock::held) {
            removeLeftovers(path);
            removeLeftovers(path + backupSuffix);
            removeLeftovers(path + rejectedSuffix);
        }
        isOnDisk = replace(old, settings);
        if (!isOnDisk) {
            return;
        }
    }
    unsaved = std::move(unsavable);
}

/// Replaces the stored settings. At every moment the file or its backup is complete.
bool Store::replace(const Stored& old, const QByteArray& settings) const {
    // A file that is no settings file is first copied to `.bad`. Two kinds of files need no copy, and startsWith()
    // finds both: an empty file, and the file that a killed overwriteFile() leaves. The backup holds the bytes of the
    // latter.
    const bool isRejected = old.file != old.settings && !unfinished(old.settings).startsWith(old.file);
    if (isRejected && replaceFile(path + rejectedSuffix, old.file) != Replaced::yes) {
        return false;
    }
    const Replaced replaced = replaceFile(path, settings);
    if (replaced == Replaced::onlyInPlace) {
        return replaceFile(path + backupSuffix, settings) == Replaced::yes && overwriteFile(path, settings);
    }
    if (replaced == Replaced::no) {
        return false;
    }
    // The file is now safe on the disk. The backup only guards against damage by other programs, so its failure is
    // ignored.
    replaceCopy(path + backupSuffix, settings);
    return true;
}

QString defaultPath(const QString& executable) {
    QString base = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (!base.startsWith(u'/')) {
        const QString home = qEnvironmentVariable("HOME");
        if (!home.startsWith(u'/')) {
            return {};
        }
        base = home + u"/.config"_s;
    }
    return base + u'/' + QFileInfo(executable).completeBaseName() + u".ini"_s;
}

}  // namespace settings
