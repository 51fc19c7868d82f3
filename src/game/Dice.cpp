// SPDX-FileCopyrightText: 2026 the Kelvaro developers
// SPDX-License-Identifier: MIT

#include "game/Dice.h"

#include "platform/Int16.h"

#include <cmath>

std::int16_t RollDie(double uniform) {
    constexpr double faces = 6.0;
    return ToInt16(std::llround(std::floor(uniform * faces) + 1.0));
}
