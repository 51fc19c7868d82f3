// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/RollValue.h"

#include <array>
#include <cstdint>

// The five values of a line.
using Hand = std::array<RollValue, 5>;

// What a line can be worth, and how the scoring chart puts it.
struct HandCategory {
    bool (*holds)(const Hand& hand);
    std::int16_t points; // no two categories have the same
    const char* name;
    const char* rule; // empty for no hand, which is not in the chart
};

// Most valuable first: the first category that holds for a line is the line's. The last one, no hand, always holds.
extern const std::array<HandCategory, 9> handCategories;

// The name of the category that is worth `points`, one of the table's.
const char* HandName(std::int16_t points);

// The points of a line of five values as a dice-poker hand: 0, 5, 10, 15, 20, 25, 30, 40 or 50. The order of
// the values does not matter, and two pair beats three of a kind: that is this game's own rule.
//
// Meant for complete lines, whose values lie in 2..12. Any other value takes part in the straights and in
// five of a kind but is never counted, so five zeros score 50; throws OverflowError when a straight reaches
// past the 16-bit range.
std::int16_t EvaluateHand(RollValue a, RollValue b, RollValue c, RollValue d, RollValue e);
