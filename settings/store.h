// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <utility>

#include <QByteArray>
#include <QString>

namespace settings {

/// The settings of a user: texts by section and key, in one file. All running copies of the program share the file.
///
/// A change is saved at once if possible. If not, it stays in memory, where `read` finds it, and the next save tries
/// again. During a save, the lock `<path>.lock` keeps other copies of the program out. All calls together wait at most
/// `longestWait` for the lock, and `flush` may wait 200 ms more.
///
/// After a save, `<path>.bak` is a copy of the file. If the file is later found to be no settings file, the values come
/// from this copy, and the next save keeps the bad file as `<path>.bad`. If the file is a mount point, a save first
/// writes `<path>.bak` and then writes into the file. A file that cannot be read is never written over. No function
/// reports a failure.
class Store {
  public:
    /// Keeps the settings in the file at `iniPath`, or only in memory if the path is empty. The constructor neither
    /// reads nor creates the file.
    explicit Store(QString iniPath, std::chrono::nanoseconds longestWait = std::chrono::seconds(1));

    /// The text of the key, or the fallback if the key is absent or the file cannot be read.
    QString read(const QString& section, const QString& key, const QString& fallback) const;

    /// Sets the text of the key, creating the key if needed.
    void write(const QString& section, const QString& key, const QString& text);

    /// Sets the key to `text`, the text of a number. If the key already holds a number at least as high, the key keeps
    /// this number. Returns the text that the key has after the call.
    QString raise(const QString& section, const QString& key, const QString& text);

    /// Sets the key to "0". If the reset cannot be saved at once, and another program changes the file before the reset
    /// is saved, the stored number stays.
    void reset(const QString& section, const QString& key);

    /// Saves the changes that are not saved yet. If another copy of the program keeps the lock, saves without it. Call
    /// this function when the program closes.
    void flush();

  private:
    using Name = std::pair<QString, QString>;  // section, key

    struct Change {
        enum class Kind { write, raise, reset };
        Kind kind = Kind::write;
        QString text;
        // For an unsaved reset: the bytes of the file when the reset was requested, if the file could be read.
        std::optional<QByteArray> fileAtRequest = {};
    };

    struct Stored {
        bool available = false;  // whether the file may be written over
        QByteArray settings;
        QByteArray file;  // the bytes at the path; if these are no settings file, `settings` comes from the backup
    };

    enum class Locking { required, attempted };

    Stored stored() const;
    static QString textAfter(const Stored& stored, const Name& name, const Change& change);
    void save(Locking locking);
    bool replace(const Stored& old, const QByteArray& settings) const;

    QString path;
    std::map<Name, Change> unsaved;
    bool isOnDisk = true;  // false after a failed save: its bytes may be in the file but not yet on the disk
    std::chrono::nanoseconds patience;
};

/// The path of the settings file of an executable: `<base name of the executable>.ini` in `$XDG_CONFIG_HOME`, or in
/// `$HOME/.config` if `$XDG_CONFIG_HOME` is not an absolute path. Empty if `$HOME` is not an absolute path either.
QString defaultPath(const QString& executable);

}  // namespace settings
