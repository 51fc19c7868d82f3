// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

#include <cstdint>

// What a line can be worth; each category's value is its points.
enum class HandCategory : std::int16_t {
    NoHand = 0,
    Pair = 5,
    ThreeOfAKind = 10,
    TwoPair = 15,
    FourOfAKind = 20,
    FullHouse = 25,
    SmallStraight = 30,
    LargeStraight = 40,
    FiveOfAKind = 50,
};

// The category's name as the scoring chart has it.
QLatin1String HandName(HandCategory category);
