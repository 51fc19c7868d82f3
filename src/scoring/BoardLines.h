// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/Board.h"

#include <array>
#include <cstdint>
#include <optional>

// One of the board's ten lines: a row read from its left end, or a column read from its top.
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

// The line's points, or nothing while one of its cells is empty.
std::optional<std::int16_t> ScoreLine(const BoardLine& line, const Board& board);
