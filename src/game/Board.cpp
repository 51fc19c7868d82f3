// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "game/Board.h"

#include <algorithm>

std::size_t Board::Element(std::int16_t row, std::int16_t column) {
    CheckedIndex(row, 1, Side);
    CheckedIndex(column, 1, Side);
    return static_cast<std::size_t>((row - 1) + Side * (column - 1));
}

RollValue Board::At(std::int16_t row, std::int16_t column) const {
    return cells_[Element(row, column)];
}

void Board::Set(std::int16_t row, std::int16_t column, RollValue value) {
    cells_[Element(row, column)] = value;
}

void Board::Clear() {
    cells_.fill(0);
}

bool Board::IsFull() const {
    return std::ranges::count(cells_, RollValue{0}) == 0;
}
