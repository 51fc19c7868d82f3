// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#pragma once

#include "game/RollValue.h"

#include <QString>

#include <cstdint>

class UniformGenerator;

// One throw of a six-sided die, 1..6, from the generator's next number.
std::int16_t RollDie(UniformGenerator& generator);

// What the window shows beside the dice: "= 7" for a sum of 7.
QString RolledCaption(RollValue sum);
