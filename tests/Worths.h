// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore>

using Sums = QList<int>; // of two dice each

// What a line is worth as a hand.
struct Worth {
    int points = 0;
    const char* name = nullptr;
    QRegularExpression pattern; // of the counts that WorthOf makes
};

// The best first: a line is worth the first that fits.
inline const QList<Worth> worths{
    {50, "Five of a Kind", QRegularExpression("5")},
    {40, "Large Straight", QRegularExpression("11111")},
    {30, "Small Straight", QRegularExpression("[12]{4}")},
    {25, "Full House", QRegularExpression("3.*2|2.*3")},
    {20, "Four of a Kind", QRegularExpression("4")},
    {15, "Two Pair", QRegularExpression("2.*2")},
    {10, "Three of a Kind", QRegularExpression("3")},
    {5, "Pair", QRegularExpression("2")},
    {0, "No hand", QRegularExpression("")},
};

inline Worth WorthOf(const Sums& line) {
    // How often each of the sums 2 to 12 occurs, a digit each.
    QString counts;
    for (int sum = 2; sum <= 12; ++sum) {
        counts += QString::number(line.count(sum));
    }
    const auto fits = [&](const Worth& worth) { return counts.contains(worth.pattern); };
    return *std::ranges::find_if(worths, fits);
}
