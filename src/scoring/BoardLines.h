// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/Board.h"

#include <array>
#include <cstdint>
#include <optional>

// A line of the board: a row, read from the left, or a column, read from the top.
struct BoardLine {
    enum class Kind { Row, Column };

    Kind kind;
    std::int16_t number; // 1..5

    bool Holds(const CellPosition& cell) const { return (kind == Kind::Row ? cell.row : cell.column) == number; }
};

// Rows 1 to 5, then columns 1 to 5: the order in which they are scored.
inline constexpr std::array<BoardLine, 10> boardLines{{
    {BoardLine::Kind::Row, 1},
    {BoardLine::Kind::Row, 2},
    {BoardLine::Kind::Row, 3},
    {BoardLine::Kind::Row, 4},
    {BoardLine::Kind::Row, 5},
    {BoardLine::Kind::Column, 1},
    {BoardLine::Kind::Column, 2},
    {BoardLine::Kind::Column, 3},
    {BoardLine::Kind::Column, 4},
    {BoardLine::Kind::Column, 5},
}};

// The points of the line, or nothing if one of its cells is empty.
std::optional<std::int16_t> ScoreLine(const BoardLine& line, const Board& board);
