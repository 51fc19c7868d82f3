// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <limits>
#include <stdexcept>

// Programming errors: no state of the game causes them, and nothing catches them.
struct OverflowError : std::overflow_error {
    OverflowError() : std::overflow_error("16-bit overflow") {}
};

struct SubscriptError : std::out_of_range {
    SubscriptError() : std::out_of_range("subscript out of range") {}
};

// `value` as a 16-bit integer. Throws OverflowError if it does not fit.
constexpr std::int16_t ToInt16(std::int64_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) {
        throw OverflowError();
    }
    return static_cast<std::int16_t>(value);
}

// a + b. Throws OverflowError if the sum does not fit into 16 bits.
constexpr std::int16_t CheckedAdd(std::int16_t a, std::int16_t b) {
    return ToInt16(std::int64_t{a} + b);
}

// Returns `index` if it lies in first..last. Throws SubscriptError otherwise.
constexpr std::int16_t CheckedIndex(std::int16_t index, std::int16_t first, std::int16_t last) {
    if (index < first || index > last) {
        throw SubscriptError();
    }
    return index;
}
