// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "scoring/BoardLines.h"

#include "scoring/EvaluateHand.h"

#include <algorithm>

std::optional<std::int16_t> ScoreLine(const BoardLine& line, const Board& board) {
    const auto cell = [&](std::int16_t step) {
        return line.kind == BoardLine::Kind::Row ? board.At(line.number, step) : board.At(step, line.number);
    };
    const Hand hand{cell(1), cell(2), cell(3), cell(4), cell(5)};
    if (std::ranges::find(hand, RollValue{0}) != hand.end()) {
        return std::nullopt;
    }
    return EvaluateHand(hand[0], hand[1], hand[2], hand[3], hand[4]);
}
