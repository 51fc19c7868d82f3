// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "scoring/EvaluateHand.h"

#include "platform/Int16.h"
#include "scoring/HandCategory.h"

#include <algorithm>
#include <array>
#include <functional>

namespace {

using Hand = std::array<RollValue, 5>;

constexpr RollValue lowestSum = 2;
constexpr RollValue highestSum = 12;

bool Contains(const Hand& hand, RollValue value) {
    return std::ranges::find(hand, value) != hand.end();
}

std::int16_t CountValue(RollValue value, const Hand& hand) {
    return ToInt16(std::ranges::count(hand, value));
}

// How many of the sums 2..12 occur exactly `count` times.
std::int16_t SumsOccurring(std::int16_t count, const Hand& hand) {
    std::int16_t sums = 0;
    for (RollValue value = lowestSum; value <= highestSum; value = CheckedAdd(value, 1)) {
        if (CountValue(value, hand) == count) {
            sums = CheckedAdd(sums, 1);
        }
    }
    return sums;
}

// Whether the hand holds the next `steps` neighbours of `start`, each `direction` (1 or -1) from the last.
bool RunsFrom(RollValue start, std::int16_t direction, int steps, const Hand& hand) {
    for (RollValue next = start; steps > 0; --steps) {
        next = CheckedAdd(next, direction);
        if (!Contains(hand, next)) {
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

struct HandTest {
    bool (*holds)(const Hand&);
    HandCategory category;
};

// Most valuable first: the first test that holds decides.
constexpr std::array handTests{
    HandTest{IsFiveOfAKind, HandCategory::FiveOfAKind},     HandTest{IsLargeStraight, HandCategory::LargeStraight},
    HandTest{IsSmallStraight, HandCategory::SmallStraight}, HandTest{IsFullHouse, HandCategory::FullHouse},
    HandTest{IsFourOfAKind, HandCategory::FourOfAKind},     HandTest{IsTwoPair, HandCategory::TwoPair},
    HandTest{IsThreeOfAKind, HandCategory::ThreeOfAKind},   HandTest{IsPair, HandCategory::Pair},
};

HandCategory Categorize(const Hand& hand) {
    const auto found = std::ranges::find_if(handTests, [&](const HandTest& test) { return test.holds(hand); });
    return found == handTests.end() ? HandCategory::NoHand : found->category;
}

} // namespace

std::int16_t EvaluateHand(RollValue a, RollValue b, RollValue c, RollValue d, RollValue e) {
    return static_cast<std::int16_t>(Categorize({a, b, c, d, e}));
}
