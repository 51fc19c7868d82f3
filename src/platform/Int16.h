// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <limits>
#include <stdexcept>

// Run-time errors of the game: a broken promise of the code, never a state of play. Nothing catches them.
struct OverflowError : std::overflow_error {
    OverflowError() : std::overflow_error("16-bit overflow") {}
};

struct SubscriptError : std::out_of_range {
    SubscriptError() : std::out_of_range("subscript out of range") {}
};

// The 16-bit integer that holds `value`. Throws OverflowError when none does.
constexpr std::int16_t ToInt16(std::int64_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) {
        throw OverflowError();
    }
    return static_cast<std::int16_t>(value);
}

// The sum of two 16-bit integers. Throws OverflowError when it needs more than 16 bits.
constexpr std::int16_t CheckedAdd(std::int16_t a, std::int16_t b) {
    return ToInt16(std::int64_t{a} + b);
}

// `index` itself when it lies in first..last; throws SubscriptError otherwise.
constexpr std::int16_t CheckedIndex(std::int16_t index, std::int16_t first, std::int16_t last) {
    if (index < first || index > last) {
        throw SubscriptError();
    }
    return index;
}
