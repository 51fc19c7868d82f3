// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "platform/IniText.h"

#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

bool IsHexDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

// The character that the escape at the front of `rest` stands for; `length` becomes the length of the escape.
QChar Unescape(QStringView rest, qsizetype& length) {
    length = 2;
    switch (rest.at(1).unicode()) {
    case 'n':
        return u'\n';
    case 'r':
        return u'\r';
    case 't':
        return u'\t';
    case 'x': {
        while (length < qMin<qsizetype>(6, rest.size()) && IsHexDigit(rest.at(length))) {
            ++length;
        }
        return length == 2 ? QChar(u'x') : QChar(rest.sliced(2, length - 2).toUShort(nullptr, 16));
    }
    default:
        return rest.at(1);
    }
}

// The text inside the quotes, or nothing when the value is not one quoted text as a whole.
std::optional<QString> Unquote(QStringView value) {
    if (!value.startsWith(u'"')) {
        return std::nullopt;
    }
    QString text;
    for (qsizetype at = 1, length = 1; at < value.size(); at += length) {
        length = 1;
        const QChar c = value.at(at);
        if (c == u'"') {
            return at == value.size() - 1 ? std::optional(text) : std::nullopt;
        }
        text += c == u'\\' && at + 1 < value.size() ? Unescape(value.sliced(at), length) : c;
    }
    return std::nullopt;
}

bool IsControl(QChar c) {
    return c.category() == QChar::Other_Control;
}

QString Quote(const QString& text) {
    QString quoted = u"\""_s;
    for (const QChar c : text) {
        if (c == u'"' || c == u'\\') {
            quoted += u'\\';
            quoted += c;
        } else if (IsControl(c) || c.isSurrogate()) {
            quoted += u"\\x%1"_s.arg(uint{c.unicode()}, 4, 16, QLatin1Char('0'));
        } else {
            quoted += c;
        }
    }
    return quoted + u'"';
}

QString ComposeValue(const QString& text) {
    // Behind a key that begins with a bracket, a bracket at the end would make a section of the line.
    const bool isPlain = text == text.trimmed() && !text.startsWith(u'"') && !text.endsWith(u']') && text.isValidUtf16()
                         && std::ranges::none_of(text, IsControl);
    return isPlain ? text : Quote(text);
}

} // namespace

IniMap ParseIni(const QString& text) {
    IniMap map;
    QString section;
    for (const QStringView rawLine : QStringView(text).split(u'\n')) {
        const QStringView line = rawLine.trimmed();
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            section = line.sliced(1, line.size() - 2).toString();
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (equals < 0 || line.startsWith(u';') || line.startsWith(u'#')) {
            continue;
        }
        const QString key = line.first(equals).trimmed().toString();
        const QStringView value = line.sliced(equals + 1).trimmed();
        map.insert({section, key}, Unquote(value).value_or(value.toString()));
    }
    return map;
}

QString ComposeIni(const IniMap& map) {
    QString text;
    std::optional<QString> openSection;
    for (const auto& [place, value] : map.asKeyValueRange()) {
        const auto& [section, key] = place;
        if (openSection != section) {
            openSection = section;
            text += u'[' + section + u"]\n"_s;
        }
        text += key + u'=' + ComposeValue(value) + u'\n';
    }
    return text;
}
