// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/RollValue.h"
#include "highscores/HighScoreTable.h"

#include <QString>

#include <cstdint>

struct BoardLine;

// The names that a screen reader gives the controls that show the game.
namespace SpokenNames {

// "Row 2, column 4: 7", or "empty" for a value of 0.
QString Cell(std::int16_t row, std::int16_t column, RollValue value);

// "Row 3: 25 points, Full House".
QString Line(const BoardLine& line, std::int16_t points);

// "Total: 90 points".
QString Total(std::int16_t points);

// "First die: 3"; `ordinal` is "First" or "Second".
QString Die(const QString& ordinal, std::int16_t pips);

// "Sum of the roll: 7", or "No roll" for 0.
QString Roll(RollValue sum);

// "Rank 2: 90 points, 2026/11/15 0:59", or "Rank 5: 0 points" without a text.
QString Rank(std::int16_t rank, const HighScoreEntry& entry);

} // namespace SpokenNames
