// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "highscores/ScoreText.h"

#include <QRegularExpression>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

bool IsBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

} // namespace

std::optional<std::int16_t> ReadScore(QStringView text) {
    static const QRegularExpression number(u"^([+-]?)0*([0-9]*)\\.?([0-9]*)"_s);
    using Limits = std::numeric_limits<std::int16_t>;

    // QRegularExpression matches nothing in invalid UTF-16; after Latin-1 the text is always valid.
    const auto match = number.match(QString::fromLatin1(text.toLatin1()).removeIf(IsBlank));
    const QStringView whole = match.capturedView(2);
    if (whole.size() > Limits::digits10 + 1) {
        return std::nullopt;
    }
    // The fraction is compared as text: as a double, 0.50000000000000000001 would be exactly a half.
    const QStringView fraction = match.capturedView(3);
    const QString half = u"5"_s.leftJustified(fraction.size(), u'0');
    const int truncated = whole.toInt();
    const int magnitude = truncated + (truncated % 2 == 0 ? fraction > half : fraction >= half);
    const int value = match.capturedView(1) == u'-' ? -magnitude : magnitude;
    return value < Limits::min() || value > Limits::max() ? std::nullopt
                                                          : std::optional(static_cast<std::int16_t>(value));
}
