// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/ini_file.h"

#include <QStringView>

using namespace Qt::StringLiterals;

namespace settings {

namespace {

const QByteArray byteOrderMark = "\xEF\xBB\xBF";

struct Line {
    enum class Kind { other, comment, section, entry };
    Kind kind = Kind::other;
    qsizetype begin = 0;
    qsizetype end = 0;  // after the line break
    QString name;       // of the section or of the key
    QString text;       // the value of the key
};

QString escaped(const QString& text, QLatin1StringView reserved = {}) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool outerBlank = c == u' ' && (i == 0 || i == text.size() - 1);
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            result += c;
            result += text[++i];
        } else if (c == u'\\') {
            result += u"\\\\";
        } else if (c < u' ' || c == QChar::ByteOrderMark || c.isSurrogate() || outerBlank || reserved.contains(c)) {
            result += u"\\u%1"_s.arg(uint{c.unicode()}, 4, 16, QLatin1Char('0'));
        } else {
            result += c;
        }
    }
    return result;
}

QString unescaped(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QStringView rest = QStringView(text).sliced(i);
        if (rest.startsWith(u"\\\\")) {
            ++i;
        } else if (rest.startsWith(u"\\u") && rest.size() >= 6) {
            bool valid = false;
            const ushort unit = rest.sliced(2, 4).toUShort(&valid, 16);
            if (valid) {
                result += QChar(unit);
                i += 5;
                continue;
            }
        }
        result += text[i];
    }
    return result;
}

QString escapedName(const QString& name) {
    return escaped(name, "=[];#"_L1);
}

Line lineAt(const QByteArray& file, qsizetype begin) {
    const qsizetype lineBreak = file.indexOf('\n', begin);
    Line line;
    line.begin = begin;
    line.end = lineBreak < 0 ? file.size() : lineBreak + 1;
    const QByteArray content = file.sliced(begin, line.end - begin).trimmed();
    const qsizetype equals = content.indexOf('=');
    if (content.startsWith(';') || content.startsWith('#')) {
        line.kind = Line::Kind::comment;
    } else if (content.startsWith('[') && content.endsWith(']')) {
        line.kind = Line::Kind::section;
        line.name = unescaped(content.sliced(1, content.size() - 2).trimmed());
    } else if (equals >= 0) {
        line.kind = Line::Kind::entry;
        line.name = unescaped(content.first(equals).trimmed());
        line.text = unescaped(content.sliced(equals + 1).trimmed());
    }
    return line;
}

struct Place {
    std::optional<Line> entry;            // the line that holds the key
    std::optional<qsizetype> sectionEnd;  // where to insert a new line of the section
    bool hasContent = false;              // whether the file has a section, a key or a comment
};

Place placeOf(const QByteArray& file, const QString& section, const QString& key) {
    Place place;
    QString current;
    Line line;
    for (qsizetype begin = file.startsWith(byteOrderMark) ? byteOrderMark.size() : 0; begin < file.size();
         begin = line.end) {
        line = lineAt(file, begin);
        place.hasContent |= line.kind != Line::Kind::other;
        if (line.kind == Line::Kind::section) {
            current = line.name;
        } else if (line.kind != Line::Kind::entry) {
            continue;
        }
        if (current != section) {
            continue;
        }
        place.sectionEnd = line.end;
        if (line.kind == Line::Kind::entry && line.name == key) {
            place.entry = line;
        }
    }
    return place;
}

}  // namespace

bool isIniFile(const QByteArray& file) {
    return !file.contains('\0') && file.isValidUtf8() && placeOf(file, {}, {}).hasContent;
}

std::optional<QString> valueIn(const QByteArray& file, const QString& section, const QString& key) {
    const Place place = placeOf(file, section, key);
    return place.entry ? std::optional(place.entry->text) : std::nullopt;
}

QByteArray withValue(QByteArray file, const QString& section, const QString& key, const QString& text) {
    const Place place = placeOf(file, section, key);
    if (place.entry && place.entry->text == text) {
        return file;
    }
    const QByteArray lineBreak = file.contains("\r\n") ? "\r\n" : "\n";
    QByteArray added = (escapedName(key) + u'=' + escaped(text)).toUtf8() + lineBreak;
    if (place.entry) {
        return file.replace(place.entry->begin, place.entry->end - place.entry->begin, added);
    }
    if (!place.sectionEnd) {
        added.prepend('[' + escapedName(section).toUtf8() + ']' + lineBreak);
    }
    const qsizetype at = place.sectionEnd.value_or(file.size());
    if (at > 0 && file[at - 1] != '\n') {
        added.prepend(lineBreak);
    }
    return file.insert(at, added);
}

}  // namespace settings
