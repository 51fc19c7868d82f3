// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/RollValue.h"
#include "platform/Int16.h"

#include <array>
#include <cstddef>
#include <cstdint>

// The 25 cells of the grid, addressed by row and column, both 1..5. A new board is empty.
class Board {
public:
    static constexpr std::int16_t Side = 5;

    // Throws SubscriptError unless row and column lie in 1..5.
    RollValue At(std::int16_t row, std::int16_t column) const;
    void Set(std::int16_t row, std::int16_t column, RollValue value);

    void Clear();
    bool IsFull() const;

    // The index of a cell in an array of all 25, from 0, column by column. Throws SubscriptError as above.
    static std::size_t Element(std::int16_t row, std::int16_t column);

private:
    std::array<RollValue, Side * Side> cells_{};
};

struct CellPosition {
    std::int16_t row = 1;
    std::int16_t column = 1;
};

// All cells, row by row.
inline constexpr auto boardCells = [] {
    std::array<CellPosition, Board::Side * Board::Side> cells;
    auto cell = cells.begin();
    for (std::int16_t row = 1; row <= Board::Side; row = CheckedAdd(row, 1)) {
        for (std::int16_t column = 1; column <= Board::Side; column = CheckedAdd(column, 1)) {
            *cell++ = {row, column};
        }
    }
    return cells;
}();
