// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/ScoreText.h"

#include <QString>

#include <algorithm>
#include <limits>

namespace {

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

QString WithoutBlanks(QStringView text) {
    QString kept;
    for (const QChar c : text) {
        if (c != u' ' && c != u'\t' && c != u'\n' && c != u'\r') {
            kept += c;
        }
    }
    return kept;
}

QStringView TakeDigits(QStringView& rest) {
    qsizetype length = 0;
    while (length < rest.size() && IsDigit(rest.at(length))) {
        ++length;
    }
    const QStringView digits = rest.first(length);
    rest = rest.sliced(length);
    return digits;
}

// The value of `digits`, or some number far above the 16-bit range when it is larger than that.
int WholePart(QStringView digits) {
    constexpr int beyond = 1'000'000;
    int value = 0;
    for (const QChar digit : digits) {
        value = qMin(beyond, value * 10 + digit.digitValue());
    }
    return value;
}

// The digits are compared as they stand: a binary fraction could turn 2.5000000000000000001 into a half.
bool RoundsUp(int whole, QStringView fraction) {
    if (fraction.isEmpty() || fraction.front() < u'5') {
        return false;
    }
    const bool isHalf =
        fraction.front() == u'5' && std::ranges::all_of(fraction.sliced(1), [](QChar digit) { return digit == u'0'; });
    return !isHalf || whole % 2 == 1;
}

} // namespace

std::optional<std::int16_t> ReadScore(QStringView text) {
    const QString number = WithoutBlanks(text);
    QStringView rest = number;
    const bool isNegative = rest.startsWith(u'-');
    if (isNegative || rest.startsWith(u'+')) {
        rest = rest.sliced(1);
    }
    const int whole = WholePart(TakeDigits(rest));
    QStringView fraction;
    if (rest.startsWith(u'.')) {
        rest = rest.sliced(1);
        fraction = TakeDigits(rest);
    }
    const int magnitude = RoundsUp(whole, fraction) ? whole + 1 : whole;
    const int value = isNegative ? -magnitude : magnitude;

    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(value);
}
