// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ostream>
#include <string>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

inline const QString init = u"init"_s;
inline const QString col = u"Col"_s;
inline const QString none = u"(none)"_s;

/// A folder of its own for a test, for the settings file `game.ini`.
struct Folder {
    void put(const QByteArray& bytes, const QString& suffix = {}) const {
        QFile file(ini + suffix);
        if (file.open(QIODevice::WriteOnly)) {
            file.write(bytes);
        }
    }

    /// "(missing)" if there is no such file.
    QByteArray bytes(const QString& suffix = {}) const {
        QFile file(ini + suffix);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    std::string path() const { return folder.path().toStdString(); }

    QString names() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).join(u' ');
    }

    QTemporaryDir folder;
    QString ini = folder.filePath(u"game.ini"_s);
};

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << '"' << bytes.toPercentEncoding(" =[]\n;").toStdString() << '"';
}
