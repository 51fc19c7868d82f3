// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/RollValue.h"

#include <array>
#include <cstdint>

// The five values of a line.
using Hand = std::array<RollValue, 5>;

// A category of hands, with its entry in the scoring chart.
struct HandCategory {
    bool (*holds)(const Hand& hand);
    std::int16_t points; // no two categories have the same
    const char* name;
    const char* rule; // empty for "No hand", which is not in the chart
};

// All categories, the most valuable first. A hand belongs to the first that holds for it; the last, "No hand", always
// holds.
extern const std::array<HandCategory, 9> handCategories;

// The name of the category that is worth `points`, which must be one of 0, 5, 10, 15, 20, 25, 30, 40 and 50.
const char* HandName(std::int16_t points);

// The points of five values as a dice-poker hand: 0, 5, 10, 15, 20, 25, 30, 40 or 50. Their order does not matter. Two
// pair beats three of a kind: that is this game's own rule.
//
// Meant for complete lines, with values in 2..12. Other values count for straights and five of a kind only, so five
// zeros score 50. Throws OverflowError if a straight would leave the 16-bit range.
std::int16_t EvaluateHand(RollValue a, RollValue b, RollValue c, RollValue d, RollValue e);
