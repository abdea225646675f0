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

/// The per-user settings: texts by section and key in one file, shared with other running copies of the
/// program.
///
/// Every change is saved at once, together with all that could not be saved before; `read` shows it in any
/// case. Nothing is ever written over a file that cannot be read. A file that is no settings file is copied
/// to `<path>.bad` before the first save; until then, the values come from `<path>.bak`, which holds what was
/// last saved. A file that cannot be renamed over is written in place after `<path>.bak`. No call reports a failure.
/// All of them together wait at most `longestWait` for other copies, and closing a fifth of a second more.
class Store {
  public:
    /// A store in this file; in memory only if the path is empty. Nothing is read or created yet.
    explicit Store(QString iniPath, std::chrono::nanoseconds longestWait = std::chrono::seconds(1));

    /// The text of the key, or the fallback if it is absent or the file cannot be read.
    QString read(const QString& section, const QString& key, const QString& fallback) const;

    /// Sets the text of the key, creating the key if needed.
    void write(const QString& section, const QString& key, const QString& text);

    /// Sets the key to the text of a number unless it holds a number that is as high. Returns the text that
    /// it then has.
    QString raise(const QString& section, const QString& key, const QString& text);

    /// Sets the key to "0", whatever it holds. If that cannot be saved at once and another program changes
    /// the file meanwhile, it is forgotten.
    void reset(const QString& section, const QString& key);

    /// To be called at closing: saves what could not be saved before, even without the lock.
    void flush();

  private:
    using Name = std::pair<QString, QString>;  // section, key

    struct Change {
        enum class Kind { write, raise, reset };
        Kind kind = Kind::write;
        QString text;
        std::optional<QByteArray> base = {};  // of a reset that could not be saved: the file then, if it was readable
    };

    struct Stored {
        bool available = false;  // whether it may be written over
        QByteArray settings;
        QByteArray file;  // the bytes at the path: other than the settings if they are no settings file
    };

    enum class Locking { required, attempted };

    Stored stored() const;
    static QString standing(const Stored& stored, const Name& name, const Change& change);
    void save(Locking locking);
    bool replace(const Stored& old, const QByteArray& settings) const;

    QString path;
    std::map<Name, Change> unsaved;
    bool isOnDisk = true;  // false after a failed save: even if the file holds its bytes, a power cut may undo them
    std::chrono::nanoseconds patience;
};

/// Where the settings of the program with this executable lie: `<its base name>.ini` in `$XDG_CONFIG_HOME`
/// or, if that is not an absolute path, in `~/.config`. Empty without a home folder.
QString defaultPath(const QString& executable);

}  // namespace settings
