// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/RollValue.h"

#include <array>
#include <cstdint>

// The grid's 25 placed values, addressed by row and column, both 1..5. A new board is empty.
class Board {
public:
    static constexpr std::int16_t Side = 5;

    // Throws SubscriptError unless row and column lie in 1..5.
    RollValue At(std::int16_t row, std::int16_t column) const;
    void Set(std::int16_t row, std::int16_t column, RollValue value);

    void Clear();
    bool IsFull() const;

    bool operator==(const Board&) const = default;

private:
    // Column by column: the row varies fastest.
    std::array<RollValue, Side * Side> cells_{};
};
