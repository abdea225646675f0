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

/// The per-user settings: texts by section and key, in one file that running copies of the program share.
///
/// Every change is saved at once, together with earlier changes that could not be saved; `read` returns it in any case.
/// A file that cannot be read is never written over. A file that is no settings file is copied to `<path>.bad` before
/// the first save; until then, the values come from `<path>.bak`, a copy of the last save. A file that is a mount point
/// is written in place, after `<path>.bak`. No function reports a failure. All calls together wait at most
/// `longestWait` for other copies, and closing waits 200 ms more.
class Store {
  public:
    /// A store in this file, or only in memory if the path is empty. Reads and creates nothing yet.
    explicit Store(QString iniPath, std::chrono::nanoseconds longestWait = std::chrono::seconds(1));

    /// The text of the key, or the fallback if it is absent or the file cannot be read.
    QString read(const QString& section, const QString& key, const QString& fallback) const;

    /// Sets the text of the key, creating the key if needed.
    void write(const QString& section, const QString& key, const QString& text);

    /// Sets the key to the text of a number, unless it already holds a number at least as high. Returns the resulting
    /// text.
    QString raise(const QString& section, const QString& key, const QString& text);

    /// Sets the key to "0". If that cannot be saved at once and another program changes the file before it is saved,
    /// the stored number stays.
    void reset(const QString& section, const QString& key);

    /// Saves what could not be saved before, even without the lock. Call it when the program closes.
    void flush();

  private:
    using Name = std::pair<QString, QString>;  // section, key

    struct Change {
        enum class Kind { write, raise, reset };
        Kind kind = Kind::write;
        QString text;
        std::optional<QByteArray> base =
            {};  // for a reset still unsaved: the bytes of the file when it was asked for, if readable
    };

    struct Stored {
        bool available = false;  // whether it may be written over
        QByteArray settings;
        QByteArray file;  // the bytes at the path; they differ from the settings if they are no settings file
    };

    enum class Locking { required, attempted };

    Stored stored() const;
    static QString standing(const Stored& stored, const Name& name, const Change& change);
    void save(Locking locking);
    bool replace(const Stored& old, const QByteArray& settings) const;

    QString path;
    std::map<Name, Change> unsaved;
    bool isOnDisk = true;  // false after a failed save, whose bytes may be in the file but not on the disk
    std::chrono::nanoseconds patience;
};

/// The path of the settings file of an executable: `<its base name>.ini` in `$XDG_CONFIG_HOME` or, if that is not an
/// absolute path, in `~/.config`. Empty without a home folder.
QString defaultPath(const QString& executable);

}  // namespace settings
