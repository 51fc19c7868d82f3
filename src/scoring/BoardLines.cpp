// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "scoring/BoardLines.h"

#include "platform/Int16.h"
#include "scoring/EvaluateHand.h"

#include <algorithm>

std::array<RollValue, Board::Side> BoardLine::Cells(const Board& board) const {
    std::array<RollValue, Board::Side> cells{};
    for (std::int16_t step = 1; step <= Board::Side; step = CheckedAdd(step, 1)) {
        cells[static_cast<std::size_t>(step - 1)] = kind == Kind::Row ? board.At(number, step) : board.At(step, number);
    }
    return cells;
}

std::optional<std::int16_t> ScoreLine(const BoardLine& line, const Board& board) {
    const auto cells = line.Cells(board);
    if (std::ranges::find(cells, RollValue{0}) != cells.end()) {
        return std::nullopt;
    }
    return EvaluateHand(cells[0], cells[1], cells[2], cells[3], cells[4]);
}
