// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "mainwindow/SpokenNames.h"

#include "scoring/BoardLines.h"
#include "scoring/EvaluateHand.h"

using namespace Qt::StringLiterals;

QString SpokenNames::Cell(std::int16_t row, std::int16_t column, RollValue value) {
    const QString content = value == 0 ? u"empty"_s : QString::number(value);
    return u"Row %1, column %2: %3"_s.arg(row).arg(column).arg(content);
}

QString SpokenNames::Line(const BoardLine& line, std::int16_t points) {
    const QString kind = line.kind == BoardLine::Kind::Row ? u"Row"_s : u"Column"_s;
    const QString hand = QLatin1String(HandName(points));
    return u"%1 %2: %3 points, %4"_s.arg(kind).arg(line.number).arg(points).arg(hand);
}

QString SpokenNames::Total(std::int16_t points) {
    return u"Total: %1 points"_s.arg(points);
}

QString SpokenNames::Die(const QString& ordinal, std::int16_t pips) {
    return u"%1 die: %2"_s.arg(ordinal).arg(pips);
}

QString SpokenNames::Roll(RollValue sum) {
    return sum == 0 ? u"No roll"_s : u"Sum of the roll: %1"_s.arg(sum);
}

QString SpokenNames::Rank(std::int16_t rank, const HighScoreEntry& entry) {
    const QString text = entry.text.isEmpty() ? QString() : u", "_s + entry.text;
    return u"Rank %1: %2 points"_s.arg(rank).arg(entry.score) + text;
}
