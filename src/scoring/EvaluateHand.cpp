// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "scoring/EvaluateHand.h"

#include "platform/Int16.h"

#include <algorithm>
#include <functional>

namespace {

constexpr RollValue lowestSum = 2;
constexpr RollValue highestSum = 12;

std::int16_t CountValue(RollValue value, const Hand& hand) {
    return ToInt16(std::ranges::count(hand, value));
}

// How many different sums in 2..12 occur exactly `count` times in the hand.
std::int16_t SumsOccurring(std::int16_t count, const Hand& hand) {
    std::int16_t sums = 0;
    for (RollValue value = lowestSum; value <= highestSum; value = CheckedAdd(value, 1)) {
        if (CountValue(value, hand) == count) {
            sums = CheckedAdd(sums, 1);
        }
    }
    return sums;
}

// Whether the hand holds the `steps` numbers after `start`; `direction` is 1 (upwards) or -1 (downwards).
bool RunsFrom(RollValue start, std::int16_t direction, int steps, const Hand& hand) {
    for (RollValue next = start; steps > 0; --steps) {
        next = CheckedAdd(next, direction);
        if (CountValue(next, hand) == 0) {
            return false;
        }
    }
    return true;
}

bool IsFiveOfAKind(const Hand& hand) {
    return std::ranges::adjacent_find(hand, std::not_equal_to{}) == hand.end();
}

bool IsLargeStraight(const Hand& hand) {
    return RunsFrom(std::ranges::min(hand), 1, 4, hand);
}

bool IsSmallStraightFromLow(const Hand& hand) {
    return RunsFrom(std::ranges::min(hand), 1, 3, hand);
}

bool IsSmallStraightFromHigh(const Hand& hand) {
    return RunsFrom(std::ranges::max(hand), -1, 3, hand);
}

bool IsSmallStraight(const Hand& hand) {
    return IsSmallStraightFromLow(hand) || IsSmallStraightFromHigh(hand);
}

bool IsFullHouse(const Hand& hand) {
    return SumsOccurring(3, hand) > 0 && SumsOccurring(2, hand) > 0;
}

bool IsFourOfAKind(const Hand& hand) {
    return SumsOccurring(4, hand) > 0;
}

bool IsTwoPair(const Hand& hand) {
    return SumsOccurring(2, hand) == 2;
}

bool IsThreeOfAKind(const Hand& hand) {
    return SumsOccurring(3, hand) > 0;
}

bool IsPair(const Hand& hand) {
    return SumsOccurring(2, hand) > 0;
}

bool IsAnything(const Hand&) {
    return true;
}

} // namespace

constexpr std::array<HandCategory, 9> handCategories{{
    {IsFiveOfAKind, 50, "Five of a Kind", "Five rolls with the same number"},
    {IsLargeStraight, 40, "Large Straight", "Five rolls in numeric sequence"},
    {IsSmallStraight, 30, "Small Straight", "Four rolls in numeric sequence"},
    {IsFullHouse, 25, "Full House", "One pair and one Three of a Kind"},
    {IsFourOfAKind, 20, "Four of a Kind", "Four rolls with the same number"},
    {IsTwoPair, 15, "Two Pair", "Two sets of two rolls with the same number"},
    {IsThreeOfAKind, 10, "Three of a Kind", "Three rolls with the same number"},
    {IsPair, 5, "Pair", "Two rolls with the same number"},
    {IsAnything, 0, "No hand", ""},
}};

const char* HandName(std::int16_t points) {
    return std::ranges::find(handCategories, points, &HandCategory::points)->name;
}

std::int16_t EvaluateHand(RollValue a, RollValue b, RollValue c, RollValue d, RollValue e) {
    const Hand hand{a, b, c, d, e};
    return std::ranges::find_if(handCategories, [&](const auto& category) { return category.holds(hand); })->points;
}
