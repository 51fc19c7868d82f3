// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "scoring/HandCategory.h"

QLatin1String HandName(HandCategory category) {
    switch (category) {
    case HandCategory::FiveOfAKind:
        return QLatin1String("Five of a Kind");
    case HandCategory::LargeStraight:
        return QLatin1String("Large Straight");
    case HandCategory::SmallStraight:
        return QLatin1String("Small Straight");
    case HandCategory::FullHouse:
        return QLatin1String("Full House");
    case HandCategory::FourOfAKind:
        return QLatin1String("Four of a Kind");
    case HandCategory::TwoPair:
        return QLatin1String("Two Pair");
    case HandCategory::ThreeOfAKind:
        return QLatin1String("Three of a Kind");
    case HandCategory::Pair:
        return QLatin1String("Pair");
    case HandCategory::NoHand:
        break;
    }
    return QLatin1String("No hand");
}
